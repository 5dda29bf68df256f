"""A pyramid of grey height tiles in Web Mercator: relief.py TILE_FOLDER relief.bin

The source is a pyramid of grey JPEG tiles in plate carree, brighter is higher, the sea below about 86. The result is, for each
level from 1 (one tile) to 5 (16 x 16 tiles), row by row: a 32-bit length and a JPEG tile of 512 x 512 pixels.
"""
import glob
import io
import struct
import sys

import numpy
from PIL import Image

TILE = 512
LAST_LEVEL = 5
JPEG_QUALITY = 60


def read_source(folder):
    level = max(int(path.rsplit('/', 1)[1]) for path in glob.glob(f'{folder}/[0-9]'))
    columns, rows = 2 << level, 1 << level
    tiles = [[Image.open(f'{folder}/{level}/{y:06d}/{y:06d}_{x:06d}.jpg') for x in range(columns)] for y in range(rows)]
    size = tiles[0][0].size[0]
    world = Image.new('L', (columns * size, rows * size))
    for y, row in enumerate(tiles):
        for x, tile in enumerate(row):
            world.paste(tile, (x * size, y * size))
    return numpy.asarray(world, dtype=numpy.float32)


def blurred(grid):
    """Takes the block edges of the source's compression away: 1 4 6 4 1 each way."""
    for _ in range(2):
        padded = numpy.pad(grid, ((1, 1), (0, 0)), mode='edge')
        rows = (padded[:-2] + 2 * padded[1:-1] + padded[2:]) / 4
        grid = (numpy.roll(rows, 1, axis=1) + 2 * rows + numpy.roll(rows, -1, axis=1)) / 4
    return grid


def to_mercator(grid, size):
    height, width = grid.shape
    y = (numpy.arange(size) + 0.5) / size
    latitude = numpy.degrees(numpy.arctan(numpy.sinh(numpy.pi * (1 - 2 * y))))
    source_y = numpy.clip((90 - latitude) / 180 * height - 0.5, 0, height - 1.001)
    source_x = (numpy.arange(size) + 0.5) / size * width - 0.5
    top, left = source_y.astype(int), numpy.floor(source_x).astype(int)
    fy, fx = (source_y - top)[:, None].astype(numpy.float32), (source_x - left)[None, :].astype(numpy.float32)
    left, right = left % width, (left + 1) % width
    rows = grid[top] * (1 - fy) + grid[top + 1] * fy
    return rows[:, left] * (1 - fx) + rows[:, right] * fx


def halved(grid):
    return (grid[::2, ::2] + grid[1::2, ::2] + grid[::2, 1::2] + grid[1::2, 1::2]) / 4


def main(folder, target):
    levels = [to_mercator(blurred(read_source(folder)), (TILE // 2) << LAST_LEVEL)]
    while levels[0].shape[0] > TILE:
        levels.insert(0, halved(levels[0]))
    with open(target, 'wb') as file:
        for grid in levels:
            image = Image.fromarray(numpy.clip(numpy.rint(grid), 0, 255).astype(numpy.uint8))
            for y in range(0, grid.shape[0], TILE):
                for x in range(0, grid.shape[1], TILE):
                    data = io.BytesIO()
                    image.crop((x, y, x + TILE, y + TILE)).save(data, 'JPEG', quality=JPEG_QUALITY)
                    file.write(struct.pack('<I', len(data.getvalue())) + data.getvalue())


main(*sys.argv[1:])
