#!/usr/bin/env python3
"""Writes tools/qt-api-added.txt from Qt's HTML reference documentation.

The reference pages of Qt Core, Gui and Widgets say of each class, function,
macro and enum value that came after Qt 5.0 in which release it came
("This function was introduced in Qt 5.11."). The "New Classes and Functions
in Qt 5.x" pages are made from the same notes. This script reads the pages
that Debian's qtbase5-doc-html installs and keeps:

  - every entry added in Qt 5.4 or later, with its release;
  - for each function name that gained an entry in 5.4 or later, the
    overloads of that name that Qt 5.3 already had (release "-"), so that
    the guard can tell a later overload from an older one.

    python3 tools/qtapidata.py [DOC_DIR] > tools/qt-api-added.txt

DOC_DIR defaults to /usr/share/qt5/doc.
"""

import html
import os
import re
import sys

from qtapiguard import param_kinds

MODULES = ("qtcore", "qtgui", "qtwidgets")
FIRST_LATER = (5, 4)

H3 = re.compile(r'<h3 class="fn"[^>]*>(.*?)</h3>(.*?)(?=<h3 class="fn"|<!-- @@@|\Z)', re.S)
SINCE = re.compile(r"(?:introduced|added)(?: or modified)? in Qt (5)\.(\d+)")
CLASS_SINCE = re.compile(r"This (?:class|struct|namespace) was introduced in Qt (5)\.(\d+)")
TITLE = re.compile(r'<h1 class="title">(.*?)</h1>', re.S)
ENUM_ROW = re.compile(r'<tr><td class="topAlign"><code>([\w:]+)</code></td>(.*?)</tr>', re.S)
VALUE_SINCE = re.compile(r"(?:value|flag) (?:was|has been) (?:introduced|added) in Qt (5)\.(\d+)"
                         r"|\(since Qt (5)\.(\d+)\)")


def text(fragment):
    return " ".join(html.unescape(re.sub(r"<[^>]+>", "", fragment)).split())


def release(match):
    groups = [g for g in match.groups() if g]
    return (int(groups[0]), int(groups[1]))


def parse_signature(sig):
    """(qualified name, parameters) of a function heading, or None."""
    sig = re.sub(r"^\[[^\]]*\]\s*", "", sig)          # [static], [virtual], ...
    sig = re.sub(r"^template\s*<.*?>\s*", "", sig)
    m = re.search(r"([\w:~]+)\s*\((.*)\)\s*(?:const)?\s*(?:&&|&)?\s*(?:noexcept)?\s*(?:override)?\s*(?:=.*)?$", sig)
    if not m:
        return None
    name, params = m.group(1), m.group(2)
    if "operator" in name:
        return None
    return name, param_kinds(params.strip())


def main():
    doc = sys.argv[1] if len(sys.argv) > 1 else "/usr/share/qt5/doc"
    later = set()
    earlier = {}          # bare name -> set of (qualified, params)
    for module in MODULES:
        folder = os.path.join(doc, module)
        for page in sorted(os.listdir(folder)):
            if not page.endswith(".html") or page.endswith("-members.html"):
                continue
            content = open(os.path.join(folder, page), encoding="utf-8", errors="replace").read()
            title = TITLE.search(content)
            title = text(title.group(1)) if title else ""
            cls = CLASS_SINCE.search(content)
            if cls and title.endswith((" Class", " Struct", " Namespace")) and release(cls) >= FIRST_LATER:
                name = title.rsplit(" ", 1)[0]
                later.add(("%d.%d" % release(cls), "class", name, ""))
            for heading, body in H3.findall(content):
                parsed = parse_signature(text(heading))
                if not parsed:
                    continue
                name, params = parsed
                bare = name.split("::")[-1]
                if "::" in name and name.split("::")[-2] == bare:
                    continue                                   # constructors
                since = SINCE.search(body)
                rel = release(since) if since else (5, 0)
                kind = "macro" if re.match(r"^Q[A-Z_0-9]*_[A-Z_0-9]+$", bare) else "function"
                if rel >= FIRST_LATER:
                    later.add(("%d.%d" % rel, kind, name, params))
                else:
                    earlier.setdefault(bare, set()).add((name, params))
            for value, rest in ENUM_ROW.findall(content):
                since = VALUE_SINCE.search(rest)
                if since and release(since) >= FIRST_LATER:
                    later.add(("%d.%d" % release(since), "enumvalue", value, ""))

    later_names = {e[2].split("::")[-1] for e in later if e[1] == "function"}
    # An entry that also appears with an earlier release (a function moved to
    # a base class, a page that lists it twice) was there in 5.3.
    earlier_keys = {(n, p) for names in earlier.values() for n, p in names}
    rows = [e for e in later if (e[2], e[3]) not in earlier_keys]
    for bare in sorted(later_names):
        for name, params in sorted(earlier.get(bare, ())):
            rows.append(("-", "function", name, params))

    def key(row):
        rel = (0, 0) if row[0] == "-" else tuple(int(x) for x in row[0].split("."))
        return (row[2].split("::")[-1], row[2], rel, row[3])

    print("# What Qt Core, Gui and Widgets added after Qt 5.3, by release, from the")
    print("# \"introduced in Qt 5.x\" notes of Qt's reference documentation")
    print("# (written by tools/qtapidata.py; do not edit by hand).")
    print("# release<TAB>kind<TAB>name<TAB>parameters; release \"-\": an overload")
    print("# that Qt 5.3 already had, of a name that gained others later. The")
    print("# parameters are what the guard tells apart (qtapiguard.param_kind):")
    print("# callable, chars, chrono or any, with \"?\" after one with a default.")
    for row in sorted(rows, key=key):
        print("\t".join(row))


if __name__ == "__main__":
    main()
