// Shores and rivers as GMT prints them: segments cut at the borders of bins, to be joined again into rings and lines.
import fs from 'node:fs';
import { toWorldX, toWorldY, kWorldBits } from './geometry.mjs';

const kWorld = 2 ** kWorldBits;

// Segments by the level in their header: a Map of level -> list of flat lon/lat lists in hundred-thousandths of a degree.
function readSegments(path) {
  const text = fs.readFileSync(path), levels = new Map();
  let segment = [], at = 0;
  while (at < text.length) {
    let end = text.indexOf(10, at);
    if (end < 0) end = text.length;
    const line = text.latin1Slice(at, end);
    at = end + 1;
    if (line[0] === '>') {
      const level = Number(/Level\s+(\d+)/.exec(line)[1]);
      segment = [];
      if (!levels.has(level)) levels.set(level, []);
      levels.get(level).push(segment);
    } else {
      const tab = line.indexOf('\t');
      segment.push(Math.round(line.slice(0, tab) * 1e5), Math.round(line.slice(tab + 1) * 1e5));
    }
  }
  return levels;
}

// Segments that meet end to start become one. Returns closed rings (first point not repeated) and open lines.
function join(segments) {
  const key = (s, i) => s[i] * 2 ** 26 + s[i + 1];
  const starts = new Map(), ends = new Set(), used = new Set(), rings = [], lines = [];
  segments = segments.filter(s => s.length >= 4);
  for (const s of segments) {
    const k = key(s, 0);
    if (starts.has(k)) starts.get(k).push(s); else starts.set(k, [s]);
    ends.add(key(s, s.length - 2));
  }
  const follow = first => {
    const pieces = [first], home = key(first, 0);
    used.add(first);
    let last = key(first, first.length - 2);
    while (last !== home) {
      const next = (starts.get(last) ?? []).find(s => !used.has(s));
      if (!next) break;
      used.add(next);
      pieces.push(next);
      last = key(next, next.length - 2);
    }
    const closed = last === home, points = [];
    pieces.forEach((p, n) => { for (let i = n ? 2 : 0; i < p.length; ++i) points.push(p[i]); });
    if (closed) points.length -= 2;
    if (closed && points.length >= 6) rings.push(points); else if (!closed) lines.push(points);
  };
  for (const s of segments) if (!ends.has(key(s, 0)) && !used.has(s)) follow(s);
  for (const s of segments) if (!used.has(s)) follow(s);
  return { rings, lines };
}

function toWorld(points) {
  return points.map((v, i) => i % 2 ? toWorldY(v / 1e5) : toWorldX(v / 1e5));
}

// What 180 degrees cuts apart is closed along that meridian; Antarctica, which runs all around, below the southern edge.
function closeAtEdge(line) {
  const n = line.length, x0 = line[0], x1 = line[n - 2];
  if (Math.abs(x0 - x1) > kWorld / 2) return [...line, x1, kWorld, x0, kWorld];
  return line;
}

// Rings of { level, points }: 1 land, 2 lake, 3 island in a lake, 4 pond on such an island. The ice front (5) counts as land.
export function readShores(path) {
  const levels = readSegments(path), shores = [];
  for (const [level, segments] of levels) {
    if (level > 5) continue;
    const { rings, lines } = join(segments);
    const edge = 1e5 * 180, ragged = lines.filter(l => Math.abs(l[0]) !== edge || Math.abs(l[l.length - 2]) !== edge);
    console.log(`shores level ${level}: ${rings.length} rings, ${lines.length} cut at 180, ${ragged.length} ragged`);
    for (const ring of rings) shores.push({ level: level === 5 ? 1 : level, points: toWorld(ring) });
    for (const line of lines) if (line.length >= 6) shores.push({ level: level === 5 ? 1 : level, points: closeAtEdge(toWorld(line)) });
  }
  return shores;
}

// Lines of { level, points }: 0 river-lakes, 1 to 4 rivers by size, 5 to 7 those that fall dry, 8 to 10 canals.
export function readRivers(path) {
  const rivers = [];
  for (const [level, segments] of readSegments(path)) {
    const { rings, lines } = join(segments);
    for (const ring of rings) rivers.push({ level, points: toWorld([...ring, ring[0], ring[1]]) });
    for (const line of lines) rivers.push({ level, points: toWorld(line) });
  }
  return rivers;
}
