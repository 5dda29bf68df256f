// One layer at one level of detail: features cut into the leaves of a quadtree and written as bytes.
//
// Index: leaf count times { u32 key, u32 offset }, ascending; key = Morton code of the leaf's first smallest cell (2 x 14 bits,
// x in the even bits) * 16 + depth of the leaf (0 to 14). Then the leaves, at offset from the end of the index: varint feature
// count; each feature: u8 attribute, varint point count, per point two zigzag varints: the step from the point before, for the
// first from the leaf's left top corner.
import { clipRing, clipLine } from './geometry.mjs';

export const kMaxDepth = 14;
const kLeafPoints = 400;

class Bytes {
  constructor() { this.data = Buffer.alloc(1 << 20); this.length = 0; }
  byte(v) {
    if (this.length === this.data.length) this.data = Buffer.concat([this.data, Buffer.alloc(this.data.length)]);
    this.data[this.length++] = v;
  }
  varint(v) { while (v > 127) { this.byte(v % 128 + 128); v = Math.floor(v / 128); } this.byte(v); }
  zigzag(v) { this.varint(v < 0 ? -2 * v - 1 : 2 * v); }
  bytes() { return this.data.subarray(0, this.length); }
}

function morton(x, y) {
  let code = 0;
  for (let bit = 0; bit < kMaxDepth; ++bit) code += ((x >> bit & 1) + 2 * (y >> bit & 1)) * 4 ** bit;
  return code;
}

// A wide leaf that is all inside a polygon is four corners; everything else is cut until its points are few.
function isWhole(features, x0, y0, size) {
  return features.every(f => f.points.length === 8 && f.points.every((v, i) => v === (i % 2 ? y0 : x0) || v === (i % 2 ? y0 : x0) + size));
}

// features: [{ attribute, points }] in units of a world 2^bits wide. Returns { bytes, leaves, points }.
export function encodeLayer(features, bits, areRings) {
  const leaves = [], out = new Bytes(), deepest = Math.min(kMaxDepth, bits - 6);
  let pointCount = 0;
  const write = (list, depth, x, y, x0, y0) => {
    leaves.push([morton(x << (kMaxDepth - depth), y << (kMaxDepth - depth)) * 16 + depth, out.length]);
    out.varint(list.length);
    for (const { attribute, points } of list) {
      out.byte(attribute);
      out.varint(points.length / 2);
      pointCount += points.length / 2;
      let lastX = x0, lastY = y0;
      for (let i = 0; i < points.length; i += 2) {
        out.zigzag(points[i] - lastX);
        out.zigzag(points[i + 1] - lastY);
        lastX = points[i];
        lastY = points[i + 1];
      }
    }
  };
  const half = (list, axis, value, below) => list.flatMap(f => {
    if (areRings) {
      const points = clipRing(f.points, axis, value, below);
      return points ? [{ attribute: f.attribute, points }] : [];
    }
    return clipLine(f.points, axis, value, below).map(points => ({ attribute: f.attribute, points }));
  });
  const visit = (list, depth, x, y) => {
    if (!list.length) return;
    const size = 2 ** (bits - depth), x0 = x * size, y0 = y * size;
    const points = list.reduce((sum, f) => sum + f.points.length / 2, 0);
    if (depth === deepest || (depth >= 2 && (points <= kLeafPoints || (areRings && isWhole(list, x0, y0, size))))) {
      write(list, depth, x, y, x0, y0);
      return;
    }
    const top = half(list, 1, y0 + size / 2, true), bottom = half(list, 1, y0 + size / 2, false);
    visit(half(top, 0, x0 + size / 2, true), depth + 1, 2 * x, 2 * y);
    visit(half(top, 0, x0 + size / 2, false), depth + 1, 2 * x + 1, 2 * y);
    visit(half(bottom, 0, x0 + size / 2, true), depth + 1, 2 * x, 2 * y + 1);
    visit(half(bottom, 0, x0 + size / 2, false), depth + 1, 2 * x + 1, 2 * y + 1);
  };
  visit(features, 0, 0, 0);
  const index = Buffer.alloc(8 * leaves.length);
  leaves.forEach(([key, offset], i) => { index.writeUInt32LE(key, 8 * i); index.writeUInt32LE(offset, 8 * i + 4); });
  return { bytes: Buffer.concat([index, out.bytes()]), leaves: leaves.length, points: pointCount };
}
