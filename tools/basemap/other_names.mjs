// Other names of the larger places, for the search: other_names.mjs WORKDIR OUT. A line for each, in the order of the folded names:
// folded name, name, number and name of the place in the base map. The reader compares the last, so a table of another map does no harm.
import { createReadStream, writeFileSync } from 'node:fs';
import { createInterface } from 'node:readline';
import { fold, readPlaces } from './places.mjs';

const [workFolder, out] = process.argv.slice(2);
const kLeastPopulation = 80000, kMostBytes = 24;
// Latin letters, as people of the region or abroad type them; no codes, no "City of", no transcriptions with apostrophes.
const kLatin = /^[A-ZÀ-ÖØ-ÞĀ-ſȘȚ][a-zA-Zà-öø-þß-ÿĀ-ſșțȘȚ -]{2,}$/u;
const kWords = /\b(city|town|district|municipio|gemeente|stadt|horad|comune|county|distrito|province|capital|ciudad|ville|lungsod|kota|bandar|mji|kenti|shehiri|dakbayan|oppidum)\b/iu;

// Letters of the languages at home: of two spellings that fold alike the one of the country is shown, else the plain one.
const kHome = { DE: 'äöüß', AT: 'äöüß', CH: 'äöüßéèêâ', DK: 'æøå', NO: 'æøå', SE: 'åäö', FI: 'åäö', FR: 'éèêëàâçîïôœ', BE: 'éèêëàâç', ES: 'áéíóúñ',
  PT: 'áéíóúâêôãõç', BR: 'áéíóúâêôãõç', PL: 'ąćęłńóśźż', CZ: 'áčďéěíňóřšťúůýž', SK: 'áäčďéíĺľňóôŕšťúýž', HU: 'áéíóöőúüű', TR: 'çğıöşü', RO: 'ăâîșț',
  HR: 'čćđšž', SI: 'čšž', IS: 'áéíóúýðþæö', EE: 'äõöüšž', LV: 'āčēģīķļņšūž', LT: 'ąčęėįšųūž' };
const rankOf = (name, country) => [...name.toLowerCase()].every(c => (kHome[country] ?? '').includes(c) || c < '\x7f') ? (/[^\x20-\x7e]/.test(name) ? 2 : 1) : 0;

const places = readPlaces(workFolder, { countries: [], states: [] });
const number = new Map(places.map((place, i) => [place.id, i]));
const rows = [];
for await (const line of createInterface({ input: createReadStream(`${workFolder}/cities500.txt`) })) {
  const columns = line.split('\t'), at = number.get(Number(columns[0]));
  if (at === undefined || places[at].population < kLeastPopulation) continue;
  const names = new Map(); // By folded name.
  for (const name of columns[3].split(',')) {
    if (!kLatin.test(name) || kWords.test(name) || Buffer.byteLength(name) > kMostBytes || name === name.toUpperCase()) continue;
    const folded = fold(name);
    if (!names.has(folded) || rankOf(name, columns[8]) > rankOf(names.get(folded), columns[8])) names.set(folded, name);
  }
  const own = places[at].folded;
  for (const [folded, name] of names) {
    if (folded.startsWith(own) || own.startsWith(folded)) continue; // Found by its own name.
    rows.push({ folded, at, text: `${folded}\t${name}\t${at}\t${places[at].name}\n` });
  }
}
rows.sort((a, b) => Buffer.compare(Buffer.from(a.folded), Buffer.from(b.folded)) || a.at - b.at);
writeFileSync(out, rows.map(row => row.text).join(''));
console.log(`${rows.length} names of ${new Set(rows.map(row => row.at)).size} places`);
