// How far from people a spot is: shores and rivers there are told more coarsely, so that the file's bytes go where users are.
import { kWorldBits } from './geometry.mjs';

const kBits = 10, kSide = 2 ** kBits, kShift = kWorldBits - kBits;

// A function of a point in the world: 0 in and around great cities, 1 where people live, 2 where few do, 3 in the wild.
export function remotenessFrom(places) {
  const people = new Float64Array(kSide * kSide), wild = new Uint8Array(kSide * kSide);
  const cell = v => Math.max(0, Math.min(kSide - 1, Math.floor(v / 2 ** kShift)));
  for (const p of places) people[cell(p.y) * kSide + cell(p.x)] += p.population;
  for (let y = 0; y < kSide; ++y) for (let x = 0; x < kSide; ++x) {
    let sum = 0;
    for (let dy = -1; dy <= 1; ++dy) for (let dx = -1; dx <= 1; ++dx) {
      const row = y + dy;
      if (row >= 0 && row < kSide) sum += people[row * kSide + (x + dx + kSide) % kSide];
    }
    wild[y * kSide + x] = sum >= 1500000 ? 0 : sum >= 20000 ? 1 : sum >= 2000 ? 2 : 3;
  }
  return (x, y) => wild[cell(y) * kSide + cell(x)];
}
