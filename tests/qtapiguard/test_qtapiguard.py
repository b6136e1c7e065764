#!/usr/bin/env python3
"""The API guard finds exactly the later uses in later_api.cpp, each on its
line, and nothing in qt53_api.cpp."""

import os
import re
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
GUARD = os.path.join(HERE, "..", "..", "tools", "qtapiguard.py")


def run(name):
    path = os.path.join(HERE, name)
    result = subprocess.run([sys.executable, GUARD, path], capture_output=True, text=True)
    found = []
    for line in result.stdout.splitlines():
        m = re.match(r".*:(\d+): (\S+) \(Qt 5\.\d+\)$", line)
        if not m:
            sys.exit("unexpected output line: %r" % line)
        found.append((int(m.group(1)), m.group(2)))
    return result.returncode, found


def expected(name):
    marks = []
    for number, line in enumerate(open(os.path.join(HERE, name), encoding="utf-8"), 1):
        m = re.search(r"// expect: (\S+)\s*$", line)
        if m:
            marks.append((number, m.group(1)))
    return marks


failures = []
code, found = run("later_api.cpp")
want = expected("later_api.cpp")
if code != 1:
    failures.append("later_api.cpp: exit %d, want 1" % code)
for miss in sorted(set(want) - set(found)):
    failures.append("later_api.cpp:%d: %s not reported" % miss)
for extra in sorted(set(found) - set(want)):
    failures.append("later_api.cpp:%d: %s reported but not expected" % extra)

code, found = run("qt53_api.cpp")
if code != 0 or found:
    failures.append("qt53_api.cpp: exit %d, reported %s" % (code, found))

for failure in failures:
    print(failure)
print("%d failures" % len(failures))
sys.exit(1 if failures else 0)
