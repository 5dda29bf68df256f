// Web Mercator in whole numbers, simplification and clipping. A line or ring is one flat array x, y, x, y, ...; a ring does
// not repeat its first point. Coordinates are of a world that is 2^kWorldBits units wide.

export const kWorldBits = 28;
const kWorld = 2 ** kWorldBits;

export function toWorldX(lon) {
  return Math.round((lon + 180) / 360 * kWorld);
}

export function toWorldY(lat) {
  const limited = Math.max(-85.0511287798, Math.min(85.0511287798, lat));
  const y = 0.5 - Math.asinh(Math.tan(limited * Math.PI / 180)) / (2 * Math.PI);
  return Math.max(0, Math.min(kWorld, Math.round(y * kWorld)));
}

// The square metres on the ground of one square unit grow toward the equator by this much: cosine of the latitude squared.
export function groundShrink(worldY) {
  return 1 / Math.cosh((0.5 - worldY / kWorld) * 2 * Math.PI) ** 2;
}

export function signedArea(ring) {
  let sum = 0;
  for (let i = 0, j = ring.length - 2; i < ring.length; j = i, i += 2) sum += (ring[j] - ring[i]) * (ring[j + 1] + ring[i + 1]);
  return sum / 2;
}

export function bounds(points) {
  const box = { x0: Infinity, y0: Infinity, x1: -Infinity, y1: -Infinity };
  for (let i = 0; i < points.length; i += 2) {
    box.x0 = Math.min(box.x0, points[i]);
    box.x1 = Math.max(box.x1, points[i]);
    box.y0 = Math.min(box.y0, points[i + 1]);
    box.y1 = Math.max(box.y1, points[i + 1]);
  }
  return box;
}

// Douglas and Peucker: the points of an open line that matter at this tolerance (a function of the place), both ends among them.
export function simplifyLine(points, tolerance) {
  const count = points.length / 2;
  if (count < 3) return points;
  const keep = new Uint8Array(count);
  keep[0] = keep[count - 1] = 1;
  const stack = [0, count - 1];
  while (stack.length) {
    const last = stack.pop(), first = stack.pop();
    const ax = points[2 * first], ay = points[2 * first + 1];
    const dx = points[2 * last] - ax, dy = points[2 * last + 1] - ay, length = dx * dx + dy * dy;
    let worst = 0, at = -1;
    for (let i = first + 1; i < last; ++i) {
      const px = points[2 * i] - ax, py = points[2 * i + 1] - ay;
      const along = length ? Math.max(0, Math.min(1, (px * dx + py * dy) / length)) : 0;
      const ex = px - along * dx, ey = py - along * dy, distance = ex * ex + ey * ey;
      if (distance > worst) { worst = distance; at = i; }
    }
    if (at < 0) continue;
    const limit = tolerance(points[2 * at], points[2 * at + 1]);
    if (worst > limit * limit) {
      keep[at] = 1;
      stack.push(first, at, at, last);
    }
  }
  const kept = [];
  for (let i = 0; i < count; ++i) if (keep[i]) kept.push(points[2 * i], points[2 * i + 1]);
  return kept;
}

// Cut at the point farthest from the first so that both halves are open lines.
export function simplifyRing(ring, tolerance) {
  let far = 0, at = 0;
  for (let i = 2; i < ring.length; i += 2) {
    const d = (ring[i] - ring[0]) ** 2 + (ring[i + 1] - ring[1]) ** 2;
    if (d > far) { far = d; at = i; }
  }
  if (!at) return [];
  const there = simplifyLine(ring.slice(0, at + 2), tolerance);
  const back = simplifyLine([...ring.slice(at), ring[0], ring[1]], tolerance);
  return there.slice(0, -2).concat(back.slice(0, -2));
}

// To the coarser units of a level of detail, without points that fall together.
export function rescale(points, bits) {
  const divisor = 2 ** (kWorldBits - bits), out = [];
  for (let i = 0; i < points.length; i += 2) {
    const x = Math.round(points[i] / divisor), y = Math.round(points[i + 1] / divisor), n = out.length;
    if (!n || out[n - 2] !== x || out[n - 1] !== y) out.push(x, y);
  }
  return out;
}

function crossing(points, i, j, axis, value) {
  const t = (value - points[i + axis]) / (points[j + axis] - points[i + axis]);
  const other = Math.round(points[i + 1 - axis] + t * (points[j + 1 - axis] - points[i + 1 - axis]));
  return axis ? [other, value] : [value, other];
}

// The part of a ring on one side of a line along an axis (0: x, 1: y).
export function clipRing(ring, axis, value, keepBelow) {
  const out = [], inside = at => keepBelow ? ring[at + axis] <= value : ring[at + axis] >= value;
  const add = (x, y) => {
    const n = out.length;
    if (n && out[n - 2] === x && out[n - 1] === y) return;
    if (n >= 4 && axis === 0 && x === value && out[n - 2] === value && out[n - 4] === value) { out[n - 1] = y; return; }
    if (n >= 4 && axis === 1 && y === value && out[n - 1] === value && out[n - 3] === value) { out[n - 2] = x; return; }
    out.push(x, y);
  };
  for (let i = 0; i < ring.length; i += 2) {
    const j = (i + 2) % ring.length;
    if (inside(i)) add(ring[i], ring[i + 1]);
    if (inside(i) !== inside(j)) add(...crossing(ring, i, j, axis, value));
  }
  const n = out.length;
  if (n >= 4 && out[0] === out[n - 2] && out[1] === out[n - 1]) out.length = n - 2;
  return out.length >= 6 && Math.abs(signedArea(out)) > 0 ? out : null;
}

// The parts of a line on one side of a line along an axis.
export function clipLine(line, axis, value, keepBelow) {
  const parts = [], inside = at => keepBelow ? line[at + axis] <= value : line[at + axis] >= value;
  let part = [];
  for (let i = 0; i < line.length; i += 2) {
    if (inside(i)) part.push(line[i], line[i + 1]);
    if (i + 2 >= line.length || inside(i) === inside(i + 2)) continue;
    part.push(...crossing(line, i, i + 2, axis, value));
    if (inside(i)) { parts.push(part); part = []; }
  }
  parts.push(part);
  return parts.filter(p => p.length > 4 || (p.length === 4 && (p[0] !== p[2] || p[1] !== p[3])));
}
