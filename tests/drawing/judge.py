"""Compares pairs of drawings with a reader of somebody else's.

judge.py FOLDER: for each NAME.before.dxf of the folder and the NAME.after.dxf beside it prints a line
"NAME: changed HANDLES, removed HANDLES, added HANDLES", or what its audit finds wrong with the later one.
"""
import pathlib
import sys

import ezdxf


def look(file):
    drawing = ezdxf.readfile(file)
    audit = drawing.audit()
    found = {}

    def add(entity):
        seen = {key: str(value) for key, value in entity.dxfattribs().items() if key != "owner"}
        if entity.dxftype() == "MTEXT":
            seen["text"] = entity.text
        if entity.dxftype() == "LWPOLYLINE":
            seen["points"] = [tuple(point) for point in entity]
        if entity.dxftype() == "POLYLINE":
            seen["points"] = [str(vertex.dxf.location) for vertex in entity.vertices]
        seen["type"] = entity.dxftype()
        found[entity.dxf.handle] = seen

    for block in drawing.blocks:  # the model space is one of them
        for entity in block:
            add(entity)
            for attribute in getattr(entity, "attribs", []):
                add(attribute)
    return found, [error.message for error in audit.errors]


for before in sorted(pathlib.Path(sys.argv[1]).glob("*.before.dxf")):
    name = before.name.removesuffix(".before.dxf")
    old, wrong_before = look(before)
    new, wrong = look(before.with_name(name + ".after.dxf"))
    both = old.keys() & new.keys()
    changed = [handle for handle in both if old[handle] != new[handle]]
    sets = (("changed", changed), ("removed", old.keys() - both), ("added", new.keys() - both))
    told = ", ".join(f"{word} {' '.join(sorted(handles)) or '-'}" for word, handles in sets)
    print(f"{name}: {told}" if not wrong and not wrong_before else f"{name}: {wrong_before} {wrong}")
