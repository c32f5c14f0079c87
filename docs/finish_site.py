#!/usr/bin/env python3
"""Mends what Doxygen leaves to be wished for in its pages. Run by scripts/make-docs.

usage: docs/finish_site.py FOLDER"""

import pathlib
import re
import sys

MENDED = [
    # A drawing is shown in a frame of its own, which no style can make smaller.
    (r'<object type="image/svg\+xml" data="([^"]*)"[^>]*></object>', r'<img src="\1" alt=""/>'),
    # The words for a picture stand below it, or in what a mouse shows; those who cannot see it get none.
    (r'alt=""/>(\s*<div class="caption">\s*)([^<"]*)', r'alt="\2"/>\1\2'),
    (r'alt="" class="inline" title="([^"]*)"', r'alt="\1" class="inline"'),
    (r'(<img src="class(\w+)\.png"[^>]*) alt=""', r'\1 alt="Bases of \2 and what is derived from it"'),
]
# The head of a class leads to its nested classes also where all of them are private, and there is no list of them.
NESTED = re.compile(r'<a href="#nested-classes">[^\n]*\n')


def finished(text):
    """The text of a page as it shall be."""
    for wrong, right in MENDED:
        text = re.sub(wrong, right, text)
    return text if 'id="nested-classes"' in text else NESTED.sub("", text)


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    for page in pathlib.Path(sys.argv[1]).glob("*.html"):
        page.write_text(finished(page.read_text(encoding="utf-8")), encoding="utf-8")


if __name__ == "__main__":
    main()
