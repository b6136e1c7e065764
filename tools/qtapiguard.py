#!/usr/bin/env python3
"""Finds Qt API from after Qt 5.3 in C++ sources.

The head unit builds the plug-in with Qt 5.3.2; our builds use a later Qt,
which compiles calls that the unit's Qt doesn't have. This check reads the
sources (no compiler) and reports each use of a Qt class, function, macro or
enum value that tools/qt-api-added.txt lists as added in 5.4 or later:

    path:line: name (Qt 5.x)

Where a name has overloads from 5.3 and later ones (QTimer::singleShot with
a slot name is old, with a functor 5.4), the call's arguments decide: a use
is reported when a later overload fits them and no older one does. A call
through an object (`fm.horizontalAdvance(...)`) is matched by the function's
name over all classes; names that the scanned code declares itself are left
alone unless they are qualified with a Qt class.

    tools/qtapiguard.py [--data FILE] PATH...      (files or folders)

Exits 1 when it reports anything, 0 otherwise.
"""

import argparse
import os
import re
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
SOURCES = (".cpp", ".h", ".hpp", ".cc")
IDENT = re.compile(r"[A-Za-z_]\w*")
# Member names of the C++ standard library's containers, strings and smart
# pointers: a call of one of them through an object is most likely not Qt's.
STD_NAMES = {"get", "reset", "release", "swap", "begin", "end", "cbegin", "cend",
             "rbegin", "rend", "size", "empty", "data", "front", "back", "at",
             "push_back", "pop_back", "emplace_back", "insert", "erase", "clear",
             "find", "count", "length", "substr", "c_str", "lock"}
KEYWORDS = {"return", "else", "case", "new", "delete", "throw", "sizeof", "co_return",
            "do", "goto"}


class Api:
    def __init__(self, path):
        self.classes = {}        # name -> release
        self.macros = {}
        self.values = {}         # Scope::Value and Value -> (qualified, release)
        self.functions = {}      # bare name -> [(class or "", release or None, params)]
        for line in open(path, encoding="utf-8"):
            if line.startswith("#") or not line.strip():
                continue
            rel, kind, name, params = (line.rstrip("\n").split("\t") + [""])[:4]
            rel = None if rel == "-" else rel
            if kind == "class":
                self.classes[name] = rel
            elif kind == "macro":
                self.macros[name.split("::")[-1]] = rel
            elif kind == "enumvalue":
                self.values[name] = (name, rel)
            elif kind == "function":
                scope, _, bare = name.rpartition("::")
                self.functions.setdefault(bare, []).append((scope, rel, parse_params(params)))


def split_top(text):
    """Splits at the commas outside brackets."""
    parts, depth, current = [], 0, []
    for ch in text:
        if ch in "([{<" and not (ch == "<" and depth == 0 and current and current[-1] == " "):
            depth += 1
        elif ch in ")]}>" and depth > 0:
            depth -= 1
        if ch == "," and depth == 0:
            parts.append("".join(current).strip())
            current = []
        else:
            current.append(ch)
    tail = "".join(current).strip()
    if tail or parts:
        parts.append(tail)
    return parts


def param_kind(param):
    """What a parameter of Qt's takes, as far as the guard tells arguments
    apart: a callable, a C string, a std::chrono duration, or anything."""
    if re.search(r"\b(Functor|PointerToMemberFunction|Func\d*|std::function)\b", param):
        return "callable"
    if re.search(r"\bchar\s*\*", param):
        return "chars"
    if "std::chrono" in param:
        return "chrono"
    return "any"


def param_kinds(params):
    """A parameter list as the data file keeps it: the kinds, a "?" after a
    parameter with a default; "..." for a macro's arguments."""
    if params.strip() == "...":
        return "..."
    if params in ("", "void"):
        return ""
    return " ".join(param_kind(p) + ("?" if "=" in p else "") for p in split_top(params))


def parse_params(kinds):
    if kinds == "...":
        return None                      # a macro's arguments: anything
    return [(kind.rstrip("?"), kind.endswith("?")) for kind in kinds.split()]


def arg_kind(arg):
    if arg.startswith("["):
        return "lambda"
    if re.match(r"&\s*[\w:]+::\w+$", arg):
        return "member"
    if arg.startswith('"') or re.match(r"(SIGNAL|SLOT)\s*\(", arg):
        return "chars"
    if re.match(r"\d+\s*(ms|s|min|h)$", arg) or "std::chrono" in arg:
        return "chrono"
    if re.match(r"-?\d", arg):
        return "number"
    return "unknown"


def fits(params, args):
    if params is None:
        return True
    required = sum(1 for _, has_default in params if not has_default)
    if not required <= len(args) <= len(params):
        return False
    for (kind, _), arg in zip(params, args):
        a = arg_kind(arg)
        if a == "unknown":
            continue
        if kind == "callable" and a not in ("lambda", "member"):
            return False
        if kind == "chars" and a != "chars":
            return False
        if kind == "chrono" and a != "chrono":
            return False
        if kind == "any" and a in ("lambda", "member", "chrono"):
            return False
    return True


def blank_comments_and_strings(code):
    """Comments become spaces and string contents 's', keeping the lines."""
    out, i, n = [], 0, len(code)
    while i < n:
        c = code[i]
        if code.startswith("//", i):
            j = code.find("\n", i)
            j = n if j < 0 else j
            out.append(" " * (j - i))
            i = j
        elif code.startswith("/*", i):
            j = code.find("*/", i + 2)
            j = n if j < 0 else j + 2
            out.append(re.sub(r"[^\n]", " ", code[i:j]))
            i = j
        elif c in "\"'":
            j = i + 1
            while j < n and code[j] != c:
                j += 2 if code[j] == "\\" else 1
            out.append(c + re.sub(r"[^\n]", "s", code[i + 1:j]) + c)
            i = j + 1
        else:
            out.append(c)
            i += 1
    return "".join(out)


def call_arguments(code, open_paren):
    """The arguments of the call whose '(' is at open_paren, or None."""
    depth = 0
    for j in range(open_paren, len(code)):
        if code[j] in "([{":
            depth += 1
        elif code[j] in ")]}":
            depth -= 1
            if depth == 0:
                return split_top(code[open_paren + 1:j])
    return None


def declares(code, start):
    """Whether the name at start follows a type: `QPixmap picture(size);`."""
    before = re.search(r"([\w>]+)\s*$", code[max(0, start - 80):start])
    return bool(before) and before.group(1) not in KEYWORDS and not before.group(1).isdigit()


def own_names(files):
    """Names of functions that the scanned code declares itself."""
    names = set()
    decl = re.compile(r"^\s*(?:(?:virtual|static|inline|explicit|Q_INVOKABLE)\s+)*"
                      r"[\w:<>,\s\*&]*?[\s\*&](\w+)\s*\([^;{]*\)\s*(?:const\s*)?(?:override\s*)?[;{=]",
                      re.M)
    for path in files:
        code = open(path, encoding="utf-8", errors="replace").read()
        names.update(decl.findall(blank_comments_and_strings(code)))
    return names


def check(path, api, own):
    code = blank_comments_and_strings(open(path, encoding="utf-8", errors="replace").read())
    found = []
    for m in IDENT.finditer(code):
        name, start, end = m.group(0), m.start(), m.end()
        member = code[:start].rstrip().endswith((".", "->"))
        scope_m = re.search(r"(\w+)\s*::\s*$", code[max(0, start - 80):start])
        scope = scope_m.group(1) if scope_m else ""
        after = code[end:end + 200]
        line = code.count("\n", 0, start) + 1
        report = None
        if name in api.classes and not member:
            report = (name, api.classes[name])
        elif name in api.macros:
            report = (name, api.macros[name])
        elif scope and "%s::%s" % (scope, name) in api.values:
            report = api.values["%s::%s" % (scope, name)]
        elif name in api.functions and re.match(r"\s*\(", after):
            candidates = api.functions[name]
            qualified = bool(scope) and any(c[0] == scope for c in candidates)
            if qualified:
                candidates = [c for c in candidates if c[0] == scope]
            elif (name in own or name in STD_NAMES or declares(code, start)
                  or (scope and not scope.startswith("Q"))):
                continue
            args = call_arguments(code, end + after.index("("))
            if args is None:
                continue
            later = [c for c in candidates if c[1] and fits(c[2], args)]
            earlier = [c for c in candidates if not c[1] and fits(c[2], args)]
            if later and not earlier:
                first = min(later, key=lambda c: tuple(int(x) for x in c[1].split(".")))
                report = (("%s::%s" % (first[0], name)) if first[0] else name, first[1])
        if report:
            found.append((line, report[0], report[1]))
    return found


def gather(paths):
    files = []
    for p in paths:
        if os.path.isdir(p):
            for root, _, names in os.walk(p):
                files.extend(os.path.join(root, n) for n in sorted(names) if n.endswith(SOURCES))
        else:
            files.append(p)
    return sorted(files)


def main():
    parser = argparse.ArgumentParser(description="Reports Qt API from after Qt 5.3.")
    parser.add_argument("--data", default=os.path.join(HERE, "qt-api-added.txt"))
    parser.add_argument("paths", nargs="+")
    options = parser.parse_args()
    api = Api(options.data)
    files = gather(options.paths)
    missing = [p for p in options.paths if not os.path.exists(p)]
    if missing:
        print("qtapiguard: no such file or folder: %s" % ", ".join(missing), file=sys.stderr)
        return 2
    own = own_names(files)
    count = 0
    for path in files:
        for line, name, rel in check(path, api, own):
            print("%s:%d: %s (Qt %s)" % (path, line, name, rel))
            count += 1
    print("qtapiguard: %d files, %d uses of Qt API from after 5.3" % (len(files), count),
          file=sys.stderr)
    return 1 if count else 0


if __name__ == "__main__":
    sys.exit(main())
