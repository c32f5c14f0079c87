"use strict";
// The page is whole without this: what is here folds, searches and moves by keyboard.
const tree = document.querySelector(".tree");
const search = document.getElementById("search");
const found = document.getElementById("found");
const items = tree ? Array.from(tree.querySelectorAll("li")) : [];
const findings = Array.from(document.querySelectorAll(".finding"));
const foldings = tree ? Array.from(tree.querySelectorAll("details")) : [];
let openBeforeSearch = null;

function rowOf(item) {
    return item.querySelector(".row");
}

function nameOf(item) {
    return rowOf(item).querySelector(".name").textContent.toLowerCase();
}

function fold(open) {
    foldings.forEach((folding) => { folding.open = open; });
}

// An item stays when its name matches, with the way to it; below a match everything stays.
function searchTree(word) {
    let count = 0;
    const stays = new Set();
    for (const item of items) {
        const matches = word !== "" && nameOf(item).includes(word);
        rowOf(item).classList.toggle("found", matches);
        if (matches) {
            ++count;
            for (let above = item; above && above !== tree; above = above.parentElement) {
                if (above.tagName === "LI") {
                    stays.add(above);
                } else if (above.tagName === "DETAILS" && above.parentElement !== item) {
                    above.open = true;
                }
            }
            item.querySelectorAll("li").forEach((below) => stays.add(below));
        }
    }
    for (const item of items) {
        item.hidden = word !== "" && !stays.has(item);
    }
    return count;
}

function isWanted(finding) {
    const box = document.querySelector("input[data-severity='" + finding.dataset.severity + "']");
    return !box || box.checked;
}

function searchFindings(word) {
    let count = 0;
    for (const finding of findings) {
        const matches = word === "" || finding.textContent.toLowerCase().includes(word);
        finding.hidden = !matches || !isWanted(finding);
        count += finding.hidden ? 0 : 1;
    }
    return count;
}

function update() {
    const word = search.value.trim().toLowerCase();
    if (word !== "" && !openBeforeSearch) {
        openBeforeSearch = foldings.map((folding) => folding.open);
    }
    const inTree = searchTree(word);
    const inFindings = searchFindings(word);
    if (word === "" && openBeforeSearch) {
        foldings.forEach((folding, index) => { folding.open = openBeforeSearch[index]; });
        openBeforeSearch = null;
    }
    found.textContent = word === "" ? "" : found.dataset.words.replace("%1", inTree).replace("%2", inFindings);
    keepOneTabStop();
}

// One row can be reached by the tabulator, the others from there by the arrow keys.
function isShown(item) {
    return !item.closest("[hidden]") && !item.parentElement.closest("details:not([open])");
}

function visibleRows() {
    return items.filter(isShown).map(rowOf);
}

function keepOneTabStop(row) {
    const rows = visibleRows();
    const stop = row || rows[0];
    items.forEach((item) => { rowOf(item).tabIndex = rowOf(item) === stop ? 0 : -1; });
}

function go(row) {
    if (row) {
        keepOneTabStop(row);
        row.focus();
    }
}

function move(event) {
    const row = event.target.closest(".row");
    if (!row || event.altKey || event.ctrlKey || event.metaKey) {
        return;
    }
    const rows = visibleRows();
    const index = rows.indexOf(row);
    const folding = row.tagName === "SUMMARY" ? row.parentElement : null;
    const above = row.closest("li").parentElement.closest("li");
    switch (event.key) {
    case "ArrowDown": go(rows[index + 1]); break;
    case "ArrowUp": go(rows[index - 1]); break;
    case "Home": go(rows[0]); break;
    case "End": go(rows[rows.length - 1]); break;
    case "ArrowRight":
        if (folding && !folding.open) { folding.open = true; } else if (folding) { go(rows[index + 1]); }
        break;
    case "ArrowLeft":
        if (folding && folding.open) { folding.open = false; } else if (above) { go(rowOf(above)); }
        break;
    default: return;
    }
    event.preventDefault();
}

// What a link leads to may be folded away or filtered out.
function followFragment() {
    const fragment = decodeURIComponent(location.hash.slice(1));
    if (fragment.startsWith("q=")) {
        search.value = fragment.slice(2);
        update();
        return;
    }
    const target = document.getElementById(fragment);
    if (!target) {
        return;
    }
    if (target.closest("[hidden]")) {
        search.value = "";
        update();
        target.hidden = false;
    }
    for (let above = target.parentElement; above; above = above.parentElement) {
        if (above.tagName === "DETAILS" && !target.matches("summary")) {
            above.open = true;
        } else if (above.tagName === "DETAILS" && above !== target.parentElement) {
            above.open = true;
        }
    }
    if (target.classList.contains("row")) {
        go(target);
    }
    target.scrollIntoView({block: "center"});
}

document.querySelectorAll("[data-script]").forEach((part) => { part.hidden = false; });
search.addEventListener("input", update);
search.addEventListener("keydown", (event) => {
    if (event.key === "Escape") {
        search.value = "";
        update();
    }
});
document.querySelectorAll("input[data-severity]").forEach((box) => box.addEventListener("change", update));
document.getElementById("unfold").addEventListener("click", () => { fold(true); keepOneTabStop(); });
document.getElementById("fold").addEventListener("click", () => { fold(false); keepOneTabStop(); });
if (tree) {
    tree.addEventListener("keydown", move);
    tree.addEventListener("focusin", (event) => {
        const row = event.target.closest(".row");
        if (row && row.tabIndex !== 0) {
            keepOneTabStop(row);
        }
    });
}
document.addEventListener("keydown", (event) => {
    if (event.key === "/" && !event.target.matches("input")) {
        event.preventDefault();
        search.focus();
    }
});
window.addEventListener("hashchange", followFragment);
keepOneTabStop();
followFragment();
