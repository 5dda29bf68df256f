// Countries and states: shared edges found once, so that a border simplified for one country is the same for its neighbour.
import { toWorldX, toWorldY, simplifyLine, signedArea, groundShrink, bounds } from './geometry.mjs';
import { labelPoint } from './label_point.mjs';

export const kColours = 7;

const kNames = { Macedonia: 'North Macedonia', eSwatini: 'Eswatini', 'United States of America': 'United States', 'W. Sahara': 'Western Sahara',
  'S. Sudan': 'South Sudan', 'Faeroe Is.': 'Faroe Islands', 'Dominican Rep.': 'Dominican Republic', 'Falkland Is.': 'Falkland Islands',
  'Eq. Guinea': 'Equatorial Guinea', 'Central African Rep.': 'Central African Republic', 'Solomon Is.': 'Solomon Islands', Turkey: 'Türkiye' };

function toWorldRing(flat) {
  const ring = flat.map((v, i) => i % 2 ? toWorldY(v) : toWorldX(v)), n = ring.length;
  if (n >= 4 && ring[0] === ring[n - 2] && ring[1] === ring[n - 1]) ring.length = n - 2;
  return ring;
}

// Exact in a double: 26 bits each.
const pointKey = (x, y) => Math.floor(x / 4) * 2 ** 26 + Math.floor(y / 4);

// Every edge of the areas once, with the areas that it bounds, and the points where three or more edges meet.
class EdgeGraph {
  constructor(areas) {
    this.edges = new Map();
    this.degree = new Map();
    areas.forEach((area, owner) => { for (const ring of area.rings) this.#addRing(ring, owner); });
  }

  #addRing(ring, owner) {
    for (let i = 0, j = ring.length - 2; i < ring.length; j = i, i += 2) {
      const a = pointKey(ring[j], ring[j + 1]), b = pointKey(ring[i], ring[i + 1]), key = a < b ? `${a} ${b}` : `${b} ${a}`;
      const edge = this.edges.get(key);
      if (edge) { edge.add(owner); continue; }
      this.edges.set(key, new Set([owner]));
      this.degree.set(a, (this.degree.get(a) ?? 0) + 1);
      this.degree.set(b, (this.degree.get(b) ?? 0) + 1);
    }
  }

  owners(x0, y0, x1, y1) {
    const a = pointKey(x0, y0), b = pointKey(x1, y1);
    return this.edges.get(a < b ? `${a} ${b}` : `${b} ${a}`);
  }

  // The ring as arcs { points, owners } between junctions; one closed arc from its first point in order where it has none, so that
  // both sides of it begin alike.
  arcs(ring) {
    const n = ring.length / 2, junction = i => this.degree.get(pointKey(ring[2 * (i % n)], ring[2 * (i % n) + 1])) !== 2;
    let start = 0;
    while (start < n && !junction(start)) ++start;
    if (start === n) {
      const key = i => pointKey(ring[2 * i], ring[2 * i + 1]);
      for (let i = start = 0; i < n; ++i) if (key(i) < key(start)) start = i;
    }
    const arcs = [];
    let points = [ring[2 * start], ring[2 * start + 1]];
    for (let step = 1; step <= n; ++step) {
      const i = (start + step) % n, before = (start + step - 1) % n;
      points.push(ring[2 * i], ring[2 * i + 1]);
      if (step < n && !junction(i)) continue;
      arcs.push({ points, owners: this.owners(ring[2 * before], ring[2 * before + 1], ring[2 * i], ring[2 * i + 1]) });
      points = [ring[2 * i], ring[2 * i + 1]];
    }
    return arcs;
  }
}

// Both walkers along an arc must keep the same points: simplified in one direction only.
function simplifyArc(points, tolerance) {
  const n = points.length, forward = points[0] < points[n - 2] || (points[0] === points[n - 2] && points[1] <= points[n - 1]);
  const closed = points[0] === points[n - 2] && points[1] === points[n - 1];
  const flip = p => { const out = []; for (let i = p.length - 2; i >= 0; i -= 2) out.push(p[i], p[i + 1]); return out; };
  const clockwise = closed && signedArea(points.slice(0, -2)) > 0;
  const straight = closed ? clockwise : forward;
  if (!closed) return straight ? simplifyLine(points, tolerance) : flip(simplifyLine(flip(points), tolerance));
  const half = Math.floor(n / 4) * 2;
  const ordered = straight ? points : flip(points);
  const out = simplifyLine(ordered.slice(0, half + 2), tolerance).slice(0, -2).concat(simplifyLine(ordered.slice(half), tolerance));
  return straight ? out : flip(out);
}

// Neighbours differ: the country with the most colours around it goes first, the colour used least is taken.
function colour(count, graph) {
  const neighbours = Array.from({ length: count }, () => new Set());
  for (const owners of graph.edges.values()) for (const a of owners) for (const b of owners) if (a !== b) neighbours[a].add(b);
  const colours = new Array(count).fill(-1), used = new Array(kColours).fill(0);
  const around = i => new Set([...neighbours[i]].map(j => colours[j]).filter(c => c >= 0));
  for (let done = 0; done < count; ++done) {
    let next = -1, rank = -1;
    for (let i = 0; i < count; ++i) {
      if (colours[i] >= 0) continue;
      const r = around(i).size * 1000 + neighbours[i].size;
      if (r > rank) { rank = r; next = i; }
    }
    const taken = around(next), free = [...used.keys()].filter(c => !taken.has(c)).sort((a, b) => used[a] - used[b]);
    if (!free.length) throw new Error('too few colours');
    colours[next] = free[0];
    ++used[free[0]];
  }
  return { colours, neighbours };
}

function label(area, squeeze) {
  const ground = ring => Math.abs(signedArea(ring)) * groundShrink(ring[1]);
  const largest = area.rings.reduce((best, ring) => ground(ring) > ground(best) ? ring : best);
  const box = bounds(largest);
  return { ...labelPoint(largest, squeeze), width: box.x1 - box.x0, area: Math.abs(signedArea(largest)) };
}

const kBigCountries = new Set(['US', 'CA', 'AU', 'BR', 'MX', 'IN', 'CN', 'RU', 'AR']);

export function readBorders(json) {
  const areas = list => list.map(a => ({ ...a, rings: a.rings.map(toWorldRing).filter(r => r.length >= 6) }));
  const countries = areas(json.countries), states = areas(json.states);
  const graph = new EdgeGraph(countries), stateGraph = new EdgeGraph(states);
  const { colours, neighbours } = colour(countries.length, graph);
  countries.forEach((c, i) => {
    c.colour = colours[i];
    c.name = kNames[c.name] ?? c.name;
    c.neighbours = neighbours[i];
    c.label = c.name ? label(c, 2) : null;
  });
  const byCode = new Map(countries.map((c, i) => [c.code, i]));
  for (const s of states) { s.country = byCode.get(s.code) ?? -1; s.label = s.name ? label(s, 2) : null; }
  return { countries, states, graph, stateGraph, disputed: json.disputed.map(l => l.map((v, i) => i % 2 ? toWorldY(v) : toWorldX(v))) };
}

// Country areas as rings; attribute: colour.
export function countryFeatures({ countries, graph }, tolerance) {
  return countries.flatMap(country => country.rings.map(ring => ({
    attribute: country.colour,
    points: graph.arcs(ring).flatMap(arc => simplifyArc(arc.points, tolerance).slice(0, -2)),
  }))).filter(feature => feature.points.length >= 6);
}

// Border lines; attribute: 0 national, 1 state of a big country, 2 other province, 3 disputed.
export function borderFeatures({ countries, states, graph, stateGraph, disputed }, tolerance) {
  const lines = [], seen = new Set();
  const add = (arc, attribute) => {
    const { points } = arc, n = points.length;
    const name = [pointKey(points[0], points[1]), pointKey(points[n - 2], points[n - 1])].sort().join() + ':' + n + ':' + attribute;
    if (seen.has(name)) return;
    seen.add(name);
    lines.push({ attribute, points: simplifyArc(points, tolerance) });
  };
  for (const country of countries) for (const ring of country.rings) for (const arc of graph.arcs(ring)) if (arc.owners.size > 1) add(arc, 0);
  for (const state of states) for (const ring of state.rings) for (const arc of stateGraph.arcs(ring)) {
    const codes = new Set([...arc.owners].map(o => states[o].code));
    if (arc.owners.size > 1 && codes.size === 1) add(arc, kBigCountries.has(state.code) ? 1 : 2);
  }
  for (const points of disputed) lines.push({ attribute: 3, points: simplifyLine(points, tolerance) });
  return lines;
}
