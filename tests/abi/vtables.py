#!/usr/bin/env python3
"""Compares the tables of virtual operations of the exported classes with a recorded list.

The order of the slots and of the bases is what a compiled host relies on. It is read from the
compiler (g++ -fdump-lang-class). A slot without an own body is written as "pure"; which operation
stands there is the business of tst_slots. Slots and bases that come from the toolkit are left out,
because they differ between its versions.

    vtables.py --compiler g++ --record FILE [--prefix CQT] [--update] HEADER... -- FLAG...
"""

import argparse
import difflib
import pathlib
import re
import subprocess
import sys
import tempfile

OWN_CLASS = re.compile(r"^(C|I)[A-Z]\w*(::[CIs][A-Z]\w*)?$")
TABLE = re.compile(r"^Vtable for (.+)$")
CLASS = re.compile(r"^Class (.+)$")
SLOT = re.compile(r"^\d+ +(.+)$")
BASE = re.compile(r"^(\S+) \(0x\S+\) \d+")
THUNK = re.compile(r"::_ZThn\d+_(\w+)$")


def dump(compiler, headers, flags):
    """The compiler's description of all classes in the headers."""
    with tempfile.TemporaryDirectory() as folder:
        probe = pathlib.Path(folder, "probe.cpp")
        probe.write_text("".join(f"#include <{header}>\n" for header in headers))
        subprocess.run(
            [compiler, *flags, "-fdump-lang-class", "-fsyntax-only", probe.name],
            cwd=folder, check=True)
        return "".join(file.read_text() for file in pathlib.Path(folder).glob("*.class"))


def demangle(name):
    return subprocess.run(["c++filt", name], capture_output=True, text=True,
                          check=True).stdout.strip()


def describe_slot(text):
    """The operation in a slot; None for what is not one or comes from the toolkit."""
    if text == "0":
        return "destructor"  # of a class that cannot be made
    name = text.replace("(int (*)(...))", "")
    if name == "__cxa_pure_virtual":
        return "pure"
    if name.startswith("(&") or re.fullmatch(r"-?\d+", name):
        return "table" if name.startswith("(&") else None
    thunk = THUNK.search(name)
    if thunk:
        name = demangle("_Z" + thunk.group(1))
        return None if name.startswith("Q") else "through the base: " + name
    owner = name.rsplit("::", 1)[0]
    return name if OWN_CLASS.match(owner) else None


def describe(text, prefix):
    """One block of lines per own class whose name starts with prefix, in alphabetical order."""
    blocks = {}
    lines = text.splitlines()
    for number, line in enumerate(lines):
        table = TABLE.match(line)
        if table and OWN_CLASS.match(table.group(1)):
            slots = blocks.setdefault(table.group(1), {}).setdefault("slots", [])
            for entry in lines[number + 2:]:
                slot = SLOT.match(entry)
                if not slot:
                    break
                described = describe_slot(slot.group(1))
                if described:
                    slots.append(described)
        klass = CLASS.match(line)
        if klass and OWN_CLASS.match(klass.group(1)):
            bases = blocks.setdefault(klass.group(1), {}).setdefault("bases", [])
            for entry in lines[number + 4:]:
                if not entry.strip():
                    break
                base = BASE.match(entry)
                if base and OWN_CLASS.match(base.group(1)):
                    bases.append(base.group(1))
    out = []
    for name in sorted(blocks):
        if not name.startswith(prefix) or not blocks[name].get("slots"):
            continue
        out.append("class " + name)
        out.extend("    base " + base for base in blocks[name].get("bases", []))
        number = -1
        for slot in blocks[name]["slots"]:
            if slot == "table":
                number += 1
                out.append(f"    table {number}")
            else:
                out.append("        " + slot)
        out.append("")
    return out


def main():
    split = sys.argv.index("--") if "--" in sys.argv else len(sys.argv)
    own, flags = sys.argv[1:split], sys.argv[split + 1:]
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--compiler", required=True)
    parser.add_argument("--record", required=True, type=pathlib.Path)
    parser.add_argument("--prefix", default="", help="what the names of the classes start with")
    parser.add_argument("--include-path", default="", help="folders of the toolkit, with colons")
    parser.add_argument("--update", action="store_true", help="record what is found")
    parser.add_argument("headers", nargs="+")
    arguments = parser.parse_args(own)
    flags += ["-I" + folder for folder in arguments.include_path.split(":") if folder]
    text = dump(arguments.compiler, arguments.headers, flags)
    found = "\n".join(describe(text, arguments.prefix))
    if not found:
        sys.exit("The compiler described no class.")
    if arguments.update:
        arguments.record.write_text(found)
        return
    recorded = arguments.record.read_text()
    if recorded != found:
        print("\n".join(difflib.unified_diff(recorded.splitlines(), found.splitlines(),
                                             "recorded", "found", lineterm="")))
        sys.exit("The tables of virtual operations have changed: hosts must be compiled again.")
    print(f"{found.count('class ')} classes, as recorded")


if __name__ == "__main__":
    main()
