// Builds the base map: node build.mjs WORKDIR world.rvm (WORKDIR as fetch.sh left it). README.md tells the format.
import fs from 'node:fs';
import path from 'node:path';
import { readShores, readRivers } from './coast.mjs';
import { readBorders, countryFeatures, borderFeatures } from './borders.mjs';
import { readPlaces } from './places.mjs';
import { remotenessFrom } from './settlement.mjs';
import { kWaters } from './waters.mjs';
import { kInlets } from './inlets.mjs';
import { simplifyRing, simplifyLine, rescale, bounds, toWorldX, toWorldY, kWorldBits } from './geometry.mjs';
import { encodeLayer } from './quadtree.mjs';
import { FileWriter, Strings } from './writer.mjs';

const kKind = { land: 1, rivers: 2, borders: 3, countryAreas: 4, inlets: 5, relief: 6, countries: 10, states: 11, waters: 12, places: 13, names: 14, nameIndex: 15, placeCells: 16 };

// Levels of detail: meant up to topZoom; units of 2^-bits of the world; tolerance and smallest island in units, and how many
// times as much for the four degrees of remoteness; rivers and borders up to these levels (see coast.mjs and borders.mjs).
// Country areas and borders go no finer than their source; the last level leaves them to the one before.
const kDetails = [
  { topZoom: 3, bits: 13, tolerance: 1.8, slack: [1, 1, 1, 1], smallest: 3, rivers: [0, 1], borders: [0] },
  { topZoom: 5.5, bits: 15, tolerance: 1.6, slack: [1, 1, 1, 1.4], smallest: 2, rivers: [0, 1, 2], borders: [0, 1, 3] },
  { topZoom: 8, bits: 17, tolerance: 1.5, slack: [0.8, 1, 2, 3.2], smallest: 2, rivers: [0, 1, 2, 3], borders: [0, 1, 2, 3], bordersTolerance: 0.7 },
  { topZoom: 24, bits: 20, tolerance: 2.4, slack: [0.45, 1, 3.5, 10], smallest: 3, rivers: [0, 1, 2, 3, 4, 5, 8], riverTolerance: 1.4 },
];

const [workFolder, target] = process.argv.slice(2).map(p => path.resolve(p));
const shores = readShores(`${workFolder}/shore.txt`);
for (const shore of shores) shore.box = bounds(shore.points);
const rivers = readRivers(`${workFolder}/rivers.txt`);
const borders = readBorders(JSON.parse(fs.readFileSync(`${workFolder}/borders.json`, 'utf8')));
const places = readPlaces(workFolder, borders);
console.log(`${shores.length} shores, ${rivers.length} rivers, ${borders.countries.length} countries, ${borders.states.length} states, ${places.length} places`);

const remoteness = remotenessFrom(places);
const file = new FileWriter(), strings = new Strings();
const world32 = v => Math.min(2 ** 32 - 1, v * 2 ** (32 - kWorldBits));

function addLayer(name, level, features, areRings) {
  const { bits, topZoom } = kDetails[level];
  const scaled = features.map(f => ({ attribute: f.attribute, points: rescale(f.points, bits) })).filter(f => f.points.length >= (areRings ? 6 : 4));
  const layer = encodeLayer(scaled, bits, areRings);
  file.add(kKind[name], level, layer.bytes, layer.leaves, bits, Math.round(topZoom * 100));
  console.log(`${name} ${level}: ${layer.leaves} leaves, ${layer.points} points, ${layer.bytes.length} bytes`);
}

kDetails.forEach((detail, level) => {
  const unit = 2 ** (kWorldBits - detail.bits);
  const slack = (x, y) => detail.slack[remoteness(x, y)], even = () => (detail.bordersTolerance ?? detail.tolerance) * unit;
  const tolerance = (x, y) => detail.tolerance * unit * slack(x, y);
  const riverTolerance = (x, y) => tolerance(x, y) * (detail.riverTolerance ?? 1);
  const seen = shores.filter(({ box, points }) => Math.max(box.x1 - box.x0, box.y1 - box.y0) >= detail.smallest * unit * slack(points[0], points[1]));
  addLayer('land', level, seen.map(s => ({ attribute: s.level, points: simplifyRing(s.points, tolerance) })), true);
  addLayer('rivers', level, rivers.filter(r => detail.rivers.includes(r.level)).map(r => ({ attribute: r.level, points: simplifyLine(r.points, riverTolerance) })), false);
  addLayer('inlets', level, kInlets.map(ring => ({ attribute: 2, points: ring.map((v, i) => i % 2 ? toWorldY(v) : toWorldX(v)) })), true);
  if (!detail.borders) return;
  addLayer('borders', level, borderFeatures(borders, even).filter(b => detail.borders.includes(b.attribute)), false);
  addLayer('countryAreas', level, countryFeatures(borders, even), true);
});

// Areas with a label: x, y, width in 2^-32 of the world; area as a share of the world; name; country; country code; rank or colour.
function addAreas(name, areas) {
  const record = 28, data = Buffer.alloc(record * areas.length);
  areas.forEach((a, i) => {
    const at = record * i, { offset, length } = strings.add(a.name ?? '');
    data.writeUInt32LE(a.label ? world32(a.label.x) : 0, at);
    data.writeUInt32LE(a.label ? world32(a.label.y) : 0, at + 4);
    data.writeUInt32LE(a.label ? world32(a.label.width ?? 0) : 0, at + 8);
    data.writeFloatLE((a.label?.area ?? 0) / 2 ** (2 * kWorldBits), at + 12);
    data.writeUInt32LE(offset, at + 16);
    data.writeUInt16LE(length, at + 20);
    data.writeUInt16LE(a.country >= 0 ? a.country : 0xffff, at + 22);
    data.write((a.code ?? '').slice(0, 2).padEnd(2), at + 24, 'latin1');
    data.writeUInt8(a.rank ?? a.colour ?? 0, at + 26);
  });
  file.add(kKind[name], 0, data, areas.length, 0, 0);
}
addAreas('countries', borders.countries);
addAreas('states', borders.states);
addAreas('waters', kWaters.map(([name, lat, lon, rank]) => ({ name, rank, label: { x: toWorldX(lon), y: toWorldY(lat) } })));

// Columns, each place's value behind the other's: x, y, population, name offset, folded name offset (32 bits), state, country
// (16 bits), flags, name length, folded name length (8 bits; 0: folded is the name in lower case). Columns, and zero low bits in
// positions that are known to a few metres only, make the file smaller once compressed.
function addPlaces() {
  const coarse = v => Math.round(world32(v) / 256) * 256, asciiLower = s => s.replace(/[A-Z]/g, c => c.toLowerCase());
  const names = places.map(p => strings.add(p.name));
  const folded = places.map(p => p.folded === asciiLower(p.name) ? { offset: 0, length: 0 } : strings.add(p.folded));
  const index = i => i >= 0 ? i : 0xffff;
  const columns = [
    Uint32Array.from(places, p => coarse(p.x)), Uint32Array.from(places, p => coarse(p.y)), Uint32Array.from(places, p => p.population),
    Uint32Array.from(names, n => n.offset), Uint32Array.from(folded, n => n.offset),
    Uint16Array.from(places, p => index(p.state)), Uint16Array.from(places, p => index(p.country)),
    Uint8Array.from(places, p => p.flags), Uint8Array.from(names, n => n.length), Uint8Array.from(folded, n => n.length)];
  file.add(kKind.places, 0, Buffer.concat(columns.map(c => Buffer.from(c.buffer))), places.length, 0, 0);
}
addPlaces();

function addNameIndex() {
  const folded = places.map(p => Buffer.from(p.folded));
  const order = places.map((_, i) => i).sort((a, b) => Buffer.compare(folded[a], folded[b]) || a - b);
  file.add(kKind.nameIndex, 0, Buffer.from(Uint32Array.from(order).buffer), order.length, 0, 0);
}
addNameIndex();

// Which places lie in which cell of a grid of 2^bits by 2^bits, row by row: where each cell's list starts, then the lists.
function addPlaceCells() {
  const bits = 7, side = 2 ** bits, cells = Array.from({ length: side * side }, () => []);
  const cell = v => Math.min(side - 1, Math.floor(v / 2 ** (kWorldBits - bits)));
  places.forEach((p, i) => cells[cell(p.y) * side + cell(p.x)].push(i));
  const starts = [0];
  for (const list of cells) starts.push(starts[starts.length - 1] + list.length);
  file.add(kKind.placeCells, 0, Buffer.from(Uint32Array.from([...starts, ...cells.flat()]).buffer), places.length, bits, 0);
}
addPlaceCells();

// Height tiles, level after level from 1: where each starts (and the last ends), then the JPEG tiles.
function addRelief() {
  const data = fs.readFileSync(`${workFolder}/relief.bin`), tiles = [];
  for (let at = 0; at < data.length;) {
    const length = data.readUInt32LE(at);
    tiles.push(data.subarray(at + 4, at + 4 + length));
    at += 4 + length;
  }
  const offsets = [4 * (tiles.length + 1)];
  for (const tile of tiles) offsets.push(offsets[offsets.length - 1] + tile.length);
  file.add(kKind.relief, 0, Buffer.concat([Buffer.from(Uint32Array.from(offsets).buffer), ...tiles]), tiles.length, 0, 0);
}
addRelief();

file.add(kKind.names, 0, strings.bytes(), 0, 0, 0);
fs.writeFileSync(target, file.bytes());
console.log(`${target}: ${fs.statSync(target).size} bytes`);
