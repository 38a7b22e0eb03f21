#!/usr/bin/env python3
"""Checks the direction of includes: a folder may include itself and the folders above it, never one below,
and no file may include itself in a circle. Nothing outside platform/ may include Qt."""
import pathlib
import re
import sys

ORDER = ["base", "document", "barcode", "chart", "template", "data", "surface", "properties", "testrun", "app",
         "platform"]
# Pure interfaces: plain structs and virtual functions without logic, open to every folder.
OPEN_HEADERS = {"surface/surface_ops.h", "base/host.h"}
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def includes(path):
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        match = INCLUDE.match(line)
        if match:
            yield number, match.group(1), match.group(2)


def find_cycle(graph):
    done, stack = set(), []

    def visit(node):
        if node in stack:
            return stack[stack.index(node):] + [node]
        if node in done:
            return None
        stack.append(node)
        for target in graph.get(node, ()):
            cycle = visit(target)
            if cycle:
                return cycle
        stack.pop()
        done.add(node)
        return None

    for node in graph:
        cycle = visit(node)
        if cycle:
            return cycle
    return None


def main():
    root = pathlib.Path(__file__).resolve().parent.parent / "src"
    faults, graph = [], {}
    for path in sorted(root.rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        name = path.relative_to(root).as_posix()
        folder = name.split("/")[0]
        if folder not in ORDER:
            faults.append(f"{name}: the folder {folder} has no place in the order of folders")
            continue
        for number, bracket, target in includes(path):
            where = f"src/{name}:{number}"
            if bracket == "<":
                if folder != "platform" and re.match(r"(Q[A-Z]|Qt)", target):
                    faults.append(f"{where}: Qt header <{target}> outside platform/")
                continue
            if not (root / target).exists():
                if not target.endswith(".moc") and not (pathlib.Path(target).suffix == ".inc"):
                    faults.append(f"{where}: \"{target}\" is no path below src/")
                continue
            graph.setdefault(name, []).append(target)
            if target in OPEN_HEADERS:
                continue
            if ORDER.index(target.split("/")[0]) > ORDER.index(folder):
                faults.append(f"{where}: {folder}/ may not include {target}")
    cycle = find_cycle(graph)
    if cycle:
        faults.append("include circle: " + " -> ".join(cycle))
    for fault in faults:
        print(fault)
    print(f"include check: {len(graph)} files, {len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
