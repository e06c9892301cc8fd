"""Finds circles of files that need each other: to understand one of them, all must be read.

A header and the source file of the same name are one: where a source includes what its header is
included by, the two cannot be read, tested or moved apart either.
"""


def unit_of(path):
    return path.rpartition(".")[0]


def units_of(includes):
    """{unit: units that it includes}, of {file: headers that it includes}."""
    units = {}
    for path, headers in includes.items():
        unit = unit_of(path)
        units.setdefault(unit, set()).update(map(unit_of, headers))
        units[unit].discard(unit)
    return units


def shortest_circle(units, start):
    """The units from the start back to it, the start not repeated; None: it is in no circle."""
    before, waiting = {}, [start]
    for unit in waiting:
        for other in sorted(units.get(unit, ())):
            if other == start:
                return path_to(unit, before)
            if other not in before:
                before[other] = unit
                waiting.append(other)
    return None


def path_to(unit, before):
    path = [unit]
    while path[0] in before:
        path.insert(0, before[path[0]])
    return path


def circles(includes):
    """Each circle once, from its first unit in the alphabet on."""
    units = units_of(includes)
    found = set()
    for unit in sorted(units):
        circle = shortest_circle(units, unit)
        if circle:
            first = circle.index(min(circle))
            found.add(tuple(circle[first:] + circle[:first]))
    return sorted(found)
