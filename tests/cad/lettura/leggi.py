"""Reads DXF files with ezdxf and tells what it found, one fact a line, its parts parted by tabs.

Nothing here knows how the file was written: lengths, measures and extents are worked out from what was read.
"""

import math
import sys

import ezdxf
from ezdxf import recover
from ezdxf.tools.text import plain_text


def tell(*parts):
    print("\t".join(str(p) for p in parts))


def number(value):
    return repr(round(float(value), 9))


def pieces(points, closed):
    """Ends and bulge of each piece of a polyline."""
    following = points[1:] + (points[:1] if closed else [])
    return [(a[0:2], b[0:2], a[2]) for a, b in zip(points, following)]


def length(start, end, bulge):
    chord = math.dist(start, end)
    if bulge == 0:
        return chord
    turn = 4 * math.atan(abs(bulge))
    return chord / (2 * math.sin(turn / 2)) * turn


def extent(entity):
    kind = entity.dxftype()
    if kind == "LWPOLYLINE":
        points = list(entity.get_points("xyb"))
        return sum(length(*p) for p in pieces(points, entity.closed))
    if kind == "CIRCLE":
        return 2 * math.pi * entity.dxf.radius
    if kind == "LINE":
        return entity.dxf.start.distance(entity.dxf.end)
    return 0.0


def measure(dimension):
    """What a CAD program would measure between the points of the dimension."""
    d = dimension.dxf
    kind = dimension.dimtype
    if kind == 0:
        along = math.radians(d.angle)
        return abs((d.defpoint3 - d.defpoint2).dot((math.cos(along), math.sin(along), 0)))
    if kind == 1:
        return d.defpoint2.distance(d.defpoint3)
    if kind in (3, 4):
        return d.defpoint.distance(d.defpoint4)
    first = (d.defpoint2 - d.defpoint4).angle_deg
    second = (d.defpoint3 - d.defpoint4).angle_deg
    return (second - first) % 360


def level(entity):
    """Whether a CAD program writes the text of a dimension level: between its lines, and beyond them."""
    variables = entity.override()
    return variables.get("dimtih"), variables.get("dimtoh")


def rays(entity):
    """Whether both ends of an angle lie on one ray."""
    if entity.dimtype != 5:
        return 0
    d = entity.dxf
    first = (d.defpoint2 - d.defpoint4).normalize()
    second = (d.defpoint3 - d.defpoint4).normalize()
    return int(first.isclose(second, abs_tol=1e-6))


def dimension(entity):
    drawn = [e for e in entity.get_geometry_block() if e.dxftype() == "TEXT"]
    stored = entity.dxf.actual_measurement
    if entity.dimtype == 5:
        stored = math.degrees(stored)
    words = "".join(e.dxf.text for e in drawn)
    tell("quota", entity.dimtype, number(measure(entity)), number(stored), entity.dxf.text, words)
    tell("stilequota", entity.dimtype, entity.dxf.dimstyle, *level(entity), rays(entity))
    for text in drawn:
        placed("testoquota", text)


def placed(fact, text):
    """Where a text stands: point, height, rotation, alignment."""
    _, point, _ = text.get_pos()
    d = text.dxf
    tell(fact, d.layer, *(number(v) for v in (point.x, point.y, d.height, d.rotation)), d.halign, d.valign, d.style)


def surface(vertices):
    """Area within a closed chain of vertices with bulges, counter-clockwise above 0."""
    area = 0.0
    for start, end, bulge in pieces(vertices, True):
        area += (start[0] * end[1] - end[0] * start[1]) / 2
        if bulge != 0:
            turn = 4 * math.atan(bulge)
            radius = math.dist(start, end) / (2 * math.sin(turn / 2))
            area += radius * radius * (turn - math.sin(turn)) / 2
    return area


def hatch(entity):
    borders = [(int(p.path_type_flags & 1), number(abs(surface(list(p.vertices))))) for p in entity.paths]
    whole = [part for border in borders for part in border]
    tell("campitura", entity.dxf.layer, entity.dxf.solid_fill, entity.dxf.pattern_name, len(borders), *whole)


def tables(read):
    for line in read.linetypes:
        if line.dxf.name.startswith("KELVO"):
            tags = line.pattern_tags.tags
            tell("linea", line.dxf.name, *(number(t.value) for t in tags if t.code in (40, 49)))
    for style in read.dimstyles:
        for name in sorted(style.dxfattribs()):
            if name.startswith("dim") and style.dxf.get(name) != "":
                tell("stile", style.dxf.name, name, style.dxf.get(name))


def main(path):
    tell("file", path)
    read = ezdxf.readfile(path)
    _, audit = recover.readfile(path)
    checked = read.audit()
    for entry in audit.errors + audit.fixes + checked.errors + checked.fixes:
        tell("difetto", entry.code, entry.message)
    for name in ("$ACADVER", "$INSUNITS", "$MEASUREMENT"):
        tell("testata", name, read.header[name])
    for name in ("$EXTMIN", "$EXTMAX"):
        tell("testata", name, number(read.header[name][0]), number(read.header[name][1]))
    for layer in read.layers:
        tell("layer", layer.dxf.name, layer.color, layer.dxf.lineweight, layer.dxf.linetype, int(layer.is_on()))
    tables(read)
    low, high = [math.inf, math.inf], [-math.inf, -math.inf]
    for entity in read.modelspace():
        kind, layer = entity.dxftype(), entity.dxf.layer
        bulges = 0
        if kind == "LWPOLYLINE":
            points = list(entity.get_points("xyb"))
            bulges = sum(1 for p in points if p[2] != 0)
            for p in points:
                low = [min(low[0], p[0]), min(low[1], p[1])]
                high = [max(high[0], p[0]), max(high[1], p[1])]
        closed = int(kind == "CIRCLE" or (kind == "LWPOLYLINE" and entity.closed))
        tell("entita", layer, kind, number(extent(entity)), bulges, closed)
        if kind == "TEXT":
            tell("testo", layer, plain_text(entity.dxf.text))
            placed("posto", entity)
        elif kind == "DIMENSION":
            dimension(entity)
        elif kind == "HATCH":
            hatch(entity)
    if low[0] < math.inf:
        tell("ingombro", *(number(v) for v in low + high))


for path in sys.argv[1:]:
    main(path)
