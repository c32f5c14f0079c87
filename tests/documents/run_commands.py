#!/usr/bin/env python3
"""Runs the commands that the pages and the manual pages show, word for word and in their order, each page in a folder
of its own.

usage: run_commands.py SOURCES WORK-FOLDER PROGRAM-FOLDER...

A command is a line that is set off as code and is neither CMake nor C++, or a call of one of the programs within a
sentence, unless it has a place for something, such as FILE.xsd. Each must end with 0 and print what EXPECTED has. What
is not run is either a block of which tests/package/builds_as_documented.cmake takes the lines, or has its reason in
NOT_RUN. A reason without a command is a fault, too. The examples of a manual page must print what stands below each
command; what they work on lies in a folder of the program's name in man.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys

ITSELF = "it runs the tests, this one too"
ANEW = "it builds everything anew"
WINDOWS = "it needs a Qt for Windows"
MSVC = "it needs MSVC"
PACKED = "scripts/test-packages does it"
NOT_RUN = {
    "scripts/demo": ANEW,
    "scripts/demo --window": ANEW + ", and waits for somebody",
    "scripts/test": ITSELF,
    "scripts/test all": ITSELF,
    "scripts/test asan": ITSELF,
    "scripts/test tsan": ITSELF,
    "scripts/test-packages": "it makes a Debian of its own, as root",
    "scripts/fuzz MINUTES": "it takes minutes",
    "scripts/check STEP": "it takes minutes",
    "scripts/bench": "it takes minutes",
    "scripts/bench --list": ANEW,
    "scripts/bench --filter '^walk/.*/1000$'": "it takes minutes",
    "scripts/bench --seconds 0.3 --limit 2": "it takes minutes",
    "scripts/bench --json results.json": "it takes minutes",
    "scripts/bench --json docs/measured/benchmarks.json": "it takes minutes",
    "scripts/measure instructions": "it takes minutes",
    "scripts/coverage docs/measured/coverage.json": "it takes minutes",
    "scripts/mutate --json docs/measured/mutation.json": "it takes an hour",
    "valgrind --tool=callgrind --collect-atstart=no build/release/benchmarks/xmlhelper_benchmarks \\\n"
    "    --instructions --filter '^walk/flat/unfilled/1000$'": "it needs a build without tests",
    "scripts/test-windows QT_PREFIX": WINDOWS,
    "scripts/package-windows QT_PREFIX": WINDOWS,
    "scripts/check-abi --rewrite": "it changes the record that library_keeps_its_binary_interface reads",
    "cmake --preset msvc -DCMAKE_PREFIX_PATH=<Qt>/msvc2019_64": MSVC,
    "cmake --build --preset msvc": MSVC,
    "ctest --preset msvc": MSVC,
    "scripts/install-packages build": "it installs packages",
    "scripts/install-packages bench": "it installs packages",
    "scripts/install-packages build panel check": "it installs packages",
    "scripts/make-docs": "package_makes_documentation_package runs it",
    "cmake --preset dev": "it is the build of the tests",
    "cmake --preset release -DXMLHELPER_BUILD_TESTS=OFF": ANEW,
    "cmake --build --preset release": ANEW,
    'cmake --install build/release --prefix "$HOME/xmlhelper"': "package_installs_what_clients_need installs",
    "cmake --preset packages": PACKED,
    "cmake --build --preset packages": PACKED,
    "(cd build/packages && cpack)": PACKED,
    "ctest -R replay_": "it runs tests",
    "pkg-config --variable=translationsdir xmlhelper": "package_builds_as_documented runs it",
}
EXPECTED = {
    "xmlhelper-schema examples/schemas/carrier.xsd": r"^No findings\.$",
    "xmlhelper-schema --fill examples/schemas/carrier.values examples/schemas/carrier.xsd": r"^<Carrier ",
    "xmlhelper-report report.xml": r"valid by .*carrier\.xsd",
    "xmlhelper-schema --mend mended.xsd examples/schemas/weatherstation.xsd": r"^No findings\.$",
    'xmlhelper-journal search journal.sqlite "98.5" --from 2026-03-01': r"98\.5 MHz\.xml",
}
PROGRAMS = r"(?:xmlhelper-[a-z]+|scripts/[a-z-]+|cmake|cpack|ctest|pkg-config|c\+\+)"


def blocks_of(text):
    """The blocks of lines that are set off by four blanks, and those between fences that name the shell."""
    fenced = re.findall(r"^```(?:sh|bash|console)\n(.*?)^```$", text, re.MULTILINE | re.DOTALL)
    text = re.sub(r"^```.*?^```$", "", text, flags=re.MULTILINE | re.DOTALL)
    indented = re.findall(r"(?<=\n\n)((?: {4}[^\n]*\n)+)", text)
    return [re.sub(r"^ {4}", "", block, flags=re.MULTILINE) for block in indented] + fenced


def is_shell(block):
    """Whether a block holds commands: neither calls of CMake or C++ nor the fields of a package."""
    return not re.match(r"\s*(?:[\w.]+\(|[A-Z][a-z]+: )", block)


def commands_of(block):
    """The commands of a block without their comments; a line that ends in a back slash goes on."""
    for line in re.sub(r"\\\n", "\\\\\0", block).splitlines():
        command = re.sub(r"(?:^|\s+)# .*$", "", line).rstrip().replace("\0", "\n")
        if command:
            yield command


def calls_in(text):
    """The calls of programs within sentences that have something to work on."""
    text = re.sub(r"^```.*?^```$", "", text, flags=re.MULTILINE | re.DOTALL)
    for span in re.findall(r"`([^`]+)`", text):
        call = " ".join(span.split())
        if not re.match(PROGRAMS + " ", call):
            continue
        has_place = re.search(r"\b[A-Z]{2}[A-Z_]*\b(?!=)|\.\.\.", call)
        is_option = re.fullmatch(r"\S+ --[a-z-]+", call)
        if call.startswith("scripts/") or not (has_place or is_option):
            yield call


def run_by_package_test(sources, page):
    """The beginnings of the blocks of a page that the test of clients takes from it."""
    test = (sources / "tests/package/builds_as_documented.cmake").read_text(encoding="utf-8")
    return [start for taken, start in re.findall(r'take_lines\(\w+ (\S+) "([^"]+)"\)', test) if taken == page]


def lay_out(sources, folder):
    """What the pages take for given: the examples, a schema and a folder of reports."""
    folder.mkdir(parents=True)
    (folder / "examples").symlink_to(sources / "examples")
    shutil.copy(sources / "examples/schemas/carrier.xsd", folder / "report.xsd")
    shutil.copy(sources / "examples/schemas/carrier.values", folder / "values.txt")
    (folder / "reports").mkdir()
    report = folder / "reports/98.5 MHz.xml"
    shutil.copy(sources / "examples/records/tests/records.expected", report)
    march_2026 = 1772450000
    os.utime(report, (march_2026, march_2026))


def run(command, folder):
    """What is wrong with a command, or nothing."""
    done = subprocess.run(["sh", "-c", command], cwd=folder, encoding="utf-8", capture_output=True, check=False)
    said = done.stdout + done.stderr
    if done.returncode != 0:
        return f"ends with {done.returncode}:\n{said}"
    if command in EXPECTED and not re.search(EXPECTED[command], said, re.MULTILINE):
        return f"does not print {EXPECTED[command]}:\n{said}"
    return ""


def commands_to_run(sources, page):
    """All commands of a page but those that another test takes from it."""
    text = (sources / page).read_text(encoding="utf-8")
    taken = tuple(run_by_package_test(sources, page))
    for block in filter(is_shell, blocks_of(text)):
        if not (taken and block.startswith(taken)):
            yield from commands_of(block)
    yield from calls_in(text)


def sessions_of(manual):
    """The commands of the examples of a manual page, each with what is said to be printed."""
    text = manual.read_text(encoding="utf-8").replace("\\-", "-")
    for example in re.findall(r"^\.EX\n(.*?)^\.EE$", text, re.MULTILINE | re.DOTALL):
        for session in re.findall(r"^\$ [^\n]*\n(?:(?!\$ )[^\n]*\n)*", example, re.MULTILINE):
            command, printed = session[2:].split("\n", 1)
            yield command, printed


def faults_of_manual(manual, work):
    """What is wrong with the examples of a manual page."""
    folder = work / manual.name
    shutil.copytree(pathlib.Path(__file__).parent / "man" / manual.stem, folder)
    for command, printed in sessions_of(manual):
        done = subprocess.run(["sh", "-c", command], cwd=folder, encoding="utf-8", capture_output=True, check=False)
        if done.stdout + done.stderr != printed:
            yield f"{manual.name}: {command}\n  prints\n{done.stdout}{done.stderr}  and not\n{printed}"


def names_what_is_there(command, sources):
    """Whether the script and the preset that a command names exist."""
    script = re.match(r"scripts/\S+", command)
    preset = re.search(r"--preset (\w+)", command)
    presets = re.findall(r'"name": "(\w+)"', (sources / "CMakePresets.json").read_text(encoding="utf-8"))
    return not (script and not os.access(sources / script[0], os.X_OK) or preset and preset[1] not in presets)


def check_pages(sources, work):
    """The faults of all pages, and how many of their commands were run."""
    pages = sorted(path.relative_to(sources).as_posix() for pattern in ("*.md", "docs/**/*.md", "benchmarks/*.md")
                   for path in sources.glob(pattern))
    faults, seen, number_run = [], set(), 0
    for page in pages:
        folder = work / page.replace("/", "-")
        lay_out(sources, folder)
        for command in dict.fromkeys(commands_to_run(sources, page)):
            seen.add(command)
            fault = "" if names_what_is_there(command, sources) else "names what is not there."
            if not fault and command not in NOT_RUN:
                number_run += 1
                fault = run(command, folder)
            if fault:
                faults.append(f"{page}: {command}\n  {fault}")
    faults += [f"No page shows this command: {command}" for command in [*NOT_RUN, *EXPECTED] if command not in seen]
    return faults, number_run


def check_manuals(sources, work):
    """The same for all manual pages with examples."""
    faults, number_run = [], 0
    for manual in sorted([*sources.glob("apps/*/man/*.1"), *sources.glob("examples/*/man/*.1")]):
        sessions = len(list(sessions_of(manual)))
        number_run += sessions
        if sessions:
            faults += faults_of_manual(manual, work)
    return faults, number_run


def main():
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    sources, work = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
    os.environ["PATH"] = os.pathsep.join([*sys.argv[3:], os.environ["PATH"]])
    os.environ.update(LANGUAGE="en", LC_ALL="C.UTF-8", HOME=str(work))
    shutil.rmtree(work, ignore_errors=True)
    faults, in_pages = check_pages(sources, work)
    more_faults, in_manuals = check_manuals(sources, work)
    for fault in faults + more_faults:
        print(fault, file=sys.stderr)
    print(f"{in_pages} commands of pages and {in_manuals} of manual pages were run; {len(NOT_RUN)} have reasons.")
    if faults or more_faults or not in_pages or not in_manuals:
        sys.exit(1)
    shutil.rmtree(work)


if __name__ == "__main__":
    main()
