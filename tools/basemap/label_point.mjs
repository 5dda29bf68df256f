// Where a label fits best inside a ring: the point farthest from its edges, with the ring squeezed sideways first since words
// are wider than high.
import { bounds } from './geometry.mjs';

function edgeDistance(ring, x, y, squeeze) {
  let inside = false, best = Infinity;
  for (let i = 0, j = ring.length - 2; i < ring.length; j = i, i += 2) {
    const ax = ring[j] / squeeze, ay = ring[j + 1], bx = ring[i] / squeeze, by = ring[i + 1];
    if ((ay > y) !== (by > y) && x < (bx - ax) * (y - ay) / (by - ay) + ax) inside = !inside;
    const dx = bx - ax, dy = by - ay, length = dx * dx + dy * dy;
    const t = length ? Math.max(0, Math.min(1, ((x - ax) * dx + (y - ay) * dy) / length)) : 0;
    best = Math.min(best, (x - ax - t * dx) ** 2 + (y - ay - t * dy) ** 2);
  }
  return (inside ? 1 : -1) * Math.sqrt(best);
}

// At most this many points are looked at: a label does not feel the rest.
function thinned(ring) {
  const step = Math.ceil(ring.length / 2 / 400), out = [];
  for (let i = 0; i < ring.length; i += 2 * step) out.push(ring[i], ring[i + 1]);
  return out;
}

export function labelPoint(fullRing, squeeze) {
  const ring = thinned(fullRing), box = bounds(ring);
  const width = (box.x1 - box.x0) / squeeze, height = box.y1 - box.y0;
  let best = { x: (box.x0 + box.x1) / 2 / squeeze, y: (box.y0 + box.y1) / 2, room: -Infinity };
  let cells = [{ x: box.x0 / squeeze + width / 2, y: box.y0 + height / 2, half: Math.max(width, height) / 2 }];
  for (let round = 0; round < 9 && cells.length; ++round) {
    for (const c of cells) {
      c.room = edgeDistance(ring, c.x, c.y, squeeze);
      if (c.room > best.room) best = c;
    }
    cells = cells.filter(c => c.room + c.half * Math.SQRT2 > best.room * 1.01).flatMap(({ x, y, half }) => {
      const h = half / 2;
      return [[-h, -h], [h, -h], [-h, h], [h, h]].map(([dx, dy]) => ({ x: x + dx, y: y + dy, half: h }));
    });
  }
  return { x: Math.round(best.x * squeeze), y: Math.round(best.y) };
}
