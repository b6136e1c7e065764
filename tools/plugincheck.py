#!/usr/bin/env python3
"""Checks that a plug-in module loads as the head unit loads it.

The unit's GUI process loads the plug-in into a process that already has
Qt, the C and C++ runtimes and the unit's six closed libraries. The module
must therefore:

- need only Qt's Core, Gui and Widgets and the C and C++ runtimes (and,
  in a sanitizer build, the sanitizers' runtimes): no library of ours;
- carry no run path, least of all one into a build tree;
- leave undefined only what those libraries define and what the desktop
  host, the stand-in for the unit's libraries, defines for the classes that
  host/ declares. Anything else fails the load on a unit and is named.

    plugincheck.py --config CONFIG [--defines PREFIX]... PLUGIN...

CONFIG is the JSON file that the build writes (plugincheck.json in the build
tree): the nm and readelf of the target, the desktop host library, the
folder of host/ headers, the folders where the needed libraries lie, and the
needed libraries allowed beyond Qt's and the runtimes. --defines PREFIX asks
that the module define a dynamic symbol whose demangled name starts with
PREFIX (the records' constructors: "AirData::AirData(").
"""

import argparse
import json
import os
import re
import subprocess
import sys

ALLOWED_NEEDED = [
    r"libQt5(Core|Gui|Widgets)\.so\.5",
    r"libstdc\+\+\.so\.\d+",
    r"libgcc_s\.so\.\d+",
    r"libc\.so\.\d+",
    r"libm\.so\.\d+",
    r"libpthread\.so\.\d+",
    r"libdl\.so\.\d+",
    r"ld-linux[-\w.]*\.so\.\d+",
]

# What the compiler adds in front of a class's own name.
SPECIAL_PREFIXES = ("vtable for ", "typeinfo for ", "typeinfo name for ",
                    "non-virtual thunk to ", "virtual thunk to ",
                    "construction vtable for ", "VTT for ")


def run(command):
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                            universal_newlines=True)
    if result.returncode != 0:
        raise SystemExit("plugincheck: %s failed: %s" % (" ".join(command), result.stderr.strip()))
    return result.stdout


def symbols(nm, path, which):
    """The dynamic symbols of a file: which is "--defined-only" or
    "--undefined-only". Returns {name: type letter}, names without their
    version."""
    found = {}
    for line in run([nm, "-D", which, path]).splitlines():
        parts = line.split()
        if len(parts) < 2:
            continue
        name = re.sub(r"@.*$", "", parts[-1])
        found[name] = parts[-2]
    return found


def demangle(names):
    if not names:
        return {}
    output = subprocess.run(["c++filt"], input="\n".join(names) + "\n", stdout=subprocess.PIPE,
                            universal_newlines=True, check=True).stdout.splitlines()
    return dict(zip(names, output))


def dynamic_section(readelf, path):
    needed, runpaths = [], []
    for line in run([readelf, "-d", path]).splitlines():
        match = re.search(r"\((NEEDED|RPATH|RUNPATH)\).*\[(.*)\]", line)
        if not match:
            continue
        (needed if match.group(1) == "NEEDED" else runpaths).append(match.group(2))
    return needed, runpaths


def host_classes(header_dir):
    """The classes that host/ declares, with their namespace where they have
    one (zorvappframework::UIManager)."""
    classes = set()
    for name in sorted(os.listdir(header_dir)):
        if not name.endswith(".h"):
            continue
        namespace = None
        with open(os.path.join(header_dir, name), encoding="utf-8") as header:
            for line in header:
                opened = re.match(r"\s*namespace\s+(\w+)\s*\{", line)
                if opened:
                    namespace = opened.group(1)
                elif line.startswith("}") and not line.startswith("};"):
                    namespace = None
                declared = re.match(r"\s*class\s+(\w+)\s*(?::|\{|$)", line)
                if declared:
                    classes.add((namespace + "::" if namespace else "") + declared.group(1))
    return classes


def owning_class(demangled, classes):
    for prefix in SPECIAL_PREFIXES:
        if demangled.startswith(prefix):
            demangled = demangled[len(prefix):]
            break
    for name in classes:
        if demangled == name or demangled.startswith(name + "::"):
            return name
    return None


def find_library(soname, directories):
    for directory in directories:
        path = os.path.join(directory, soname)
        if os.path.exists(path):
            return path
    return None


def check(plugin, config, defines):
    problems = []
    allowed = [re.compile(pattern + r"$") for pattern in ALLOWED_NEEDED + config.get("extra_needed", [])]
    needed, runpaths = dynamic_section(config["readelf"], plugin)
    for soname in needed:
        if not any(pattern.match(soname) for pattern in allowed):
            problems.append("needs %s, which is neither Qt's nor the C or C++ runtime" % soname)
    for runpath in runpaths:
        problems.append("carries the run path %s" % runpath)

    provided = set()
    for soname in needed:
        path = find_library(soname, config["library_dirs"])
        if path is None:
            problems.append("needs %s, which is in none of %s" % (soname, " ".join(config["library_dirs"])))
            continue
        provided.update(symbols(config["nm"], path, "--defined-only"))

    undefined = symbols(config["nm"], plugin, "--undefined-only")
    # Weak references may stay unresolved; they can't fail the load.
    open_names = sorted(name for name, kind in undefined.items() if kind == "U" and name not in provided)
    host = symbols(config["nm"], config["host"], "--defined-only")
    classes = host_classes(config["host_headers"])
    readable = demangle(open_names)
    used = set()
    bound = 0
    for name in open_names:
        owner = owning_class(readable[name], classes)
        if name not in host:
            problems.append("leaves %s undefined, which no needed library and not the desktop host defines"
                            % readable[name])
        elif owner is None:
            problems.append("leaves %s undefined, which the desktop host defines but host/ doesn't declare"
                            % readable[name])
        else:
            used.add(owner)
            bound += 1

    defined = demangle(sorted(symbols(config["nm"], plugin, "--defined-only")))
    for prefix in defines:
        if not any(name.startswith(prefix) for name in defined.values()):
            problems.append("defines no %s..." % prefix)

    label = os.path.basename(plugin)
    for problem in problems:
        print("%s: %s" % (plugin, problem))
    print("%s: needs %s; %d host symbols of %d classes (%s)%s"
          % (label, " ".join(needed), bound, len(used), ", ".join(sorted(used)) or "none", ": FAILED" if problems else ""))
    return not problems


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--config", required=True)
    parser.add_argument("--defines", action="append", default=[], metavar="PREFIX")
    parser.add_argument("plugins", nargs="+")
    args = parser.parse_args()
    with open(args.config, encoding="utf-8") as file:
        config = json.load(file)
    results = [check(plugin, config, args.defines) for plugin in args.plugins]
    return 0 if all(results) else 1


if __name__ == "__main__":
    sys.exit(main())
