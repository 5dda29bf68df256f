"""Countries, states and disputed borders of a GeoPackage as JSON: export_borders.py world_map.gpkg borders.json

A ring or line is one flat list: longitude, latitude, longitude, latitude, ...
"""
import json
import sqlite3
import struct
import sys

ENVELOPE_BYTES = [0, 32, 48, 48, 64]  # By the envelope code in the GeoPackage header's flags.
POLYGON, LINE = 3, 2


def read_parts(blob):
    """Every ring or line of a little-endian GeoPackage geometry."""
    parts = []

    def points(offset):
        (count,) = struct.unpack_from('<I', blob, offset)
        parts.append([round(v, 7) for v in struct.unpack_from(f'<{2 * count}d', blob, offset + 4)])
        return offset + 4 + 16 * count

    def geometry(offset):
        (kind,) = struct.unpack_from('<I', blob, offset + 1)
        offset += 5
        if kind == LINE:
            return points(offset)
        (count,) = struct.unpack_from('<I', blob, offset)
        offset += 4
        for _ in range(count):
            offset = points(offset) if kind == POLYGON else geometry(offset)
        return offset

    geometry(8 + ENVELOPE_BYTES[(blob[3] >> 1) & 7])
    return parts


def main(source, target):
    database = sqlite3.connect(source)
    countries = [
        {'code': code, 'name': name, 'rings': read_parts(blob)}
        for blob, code, name in database.execute('select geom, iso_a2, NAME from countries order by fid')]
    states = [
        {'name': name, 'code': code, 'rings': read_parts(blob)}
        for blob, name, code in database.execute('select geom, name, iso_a2 from states_provinces order by fid')]
    disputed = [
        line for (blob,) in database.execute('select geom from disputed_borders order by fid') for line in read_parts(blob)]
    with open(target, 'w', encoding='utf-8') as file:
        json.dump({'countries': countries, 'states': states, 'disputed': disputed}, file, ensure_ascii=False)


main(*sys.argv[1:])
