#!/usr/bin/env python3
"""Sorts the sources of a target into groups that compile as one piece each (a unity build).

    unity_groups.py MAX_LINES SOURCE...

Prints "<group>;<source>" for each source that shares a piece with others. Two sources share a piece
only where neither mentions a name that the other keeps to itself (in an unnamed namespace, as a
static, as a macro), so that no name ever has to be chosen with a look at other files. A name that both bring
in by the same using-declaration keeps no two sources apart. A source that brings the names of an enumeration
into its namespace ("using enum") is compiled alone.
"""
import os
import re
import sys

COMMENT_OR_TEXT = re.compile(r'//[^\n]*|/\*.*?\*/|R"\((.*?)\)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'', re.S)
TESTS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests")
WORD = re.compile(r"[A-Za-z_]\w*")
TYPE = re.compile(r"^(?:struct|class|enum class|enum|union) (\w+)")
MACRO = re.compile(r"^#define (\w+)")
DECLARED = re.compile(r"([A-Za-z_]\w*)\s*(?:\[[^\]]*\]\s*)*$")


def own_names(text):
    """What a source declares for itself alone, and what the names of using-declarations stand for. Namespaces
    are not indented here."""
    names, borrowed, is_unnamed, in_enum = set(), {}, False, False
    for line in text.splitlines():
        # The enumerators of a plain enum are names of their own.
        if is_unnamed and re.match(r"enum (?!class)", line):
            in_enum = True
        if in_enum:
            names.update(WORD.findall(line))
            in_enum = "}" not in line
        if match := MACRO.match(line):
            names.add(match[1])
        if match := re.match(r"using ((?:\w+::)+(\w+));", line):
            borrowed[match[2]] = match[1]
            continue
        if line.startswith("namespace"):
            is_unnamed = line.startswith("namespace {")
        # Tests name their classes after the test, which no other test has.
        if not (is_unnamed or line.startswith(("static ", "const ", "constexpr "))) or not re.match(r"[A-Za-z_]", line):
            continue
        if line.startswith(("using namespace", "template", "namespace", "TEST", "INSTANTIATE_")):
            continue
        if match := TYPE.match(line):
            names.add(match[1])
        elif match := re.match(r"using (\w+)", line):
            names.add(match[1])
        elif match := DECLARED.search(re.split(r"[(={;]", line, maxsplit=1)[0].rstrip()):
            names.add(match[1])
    return names, borrowed


def clash(one, other):
    """Whether a source can't be compiled together with a group of others, or a group with a source."""
    borrowed = {name for name, meaning in one["borrowed"].items() if other["borrowed"].get(name) != meaning}
    return (one["own"] | borrowed) & other["mentioned"]


def main():
    limit = int(sys.argv[1])
    groups = []
    for path in sorted(sys.argv[2:]):
        with open(path, encoding="utf-8") as file:
            raw = file.read()
        text = COMMENT_OR_TEXT.sub(" ", raw)
        if re.search(r"^using enum", text, re.M):
            continue
        mentioned = set(WORD.findall(text))
        # The helpers of tests are headers that are seldom included twice, so they meet strange names.
        for header in re.findall(r'#include "([^"]+)"', raw):
            if os.path.exists(os.path.join(TESTS, header)):
                with open(os.path.join(TESTS, header), encoding="utf-8") as file:
                    mentioned |= set(WORD.findall(COMMENT_OR_TEXT.sub(" ", file.read())))
        own, borrowed = own_names(text)
        source = {"own": own, "borrowed": borrowed, "mentioned": mentioned}
        lines = raw.count("\n")
        for group in groups:
            if group["lines"] + lines <= limit and not clash(source, group) and not clash(group, source):
                break
        else:
            group = {"lines": 0, "own": set(), "borrowed": {}, "mentioned": set(), "paths": []}
            groups.append(group)
        group["lines"] += lines
        group["own"] |= own
        group["borrowed"].update(borrowed)
        group["mentioned"] |= mentioned
        group["paths"].append(path)
    for number, group in enumerate(groups):
        if len(group["paths"]) > 1:
            for path in group["paths"]:
                print(f"{number};{path}")


main()
