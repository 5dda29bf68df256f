// The container: a header, a table of sections, the sections. All numbers are little-endian.

const kMagic = 'RVMAP\r\n\x1a';
const kVersion = 1, kHeaderBytes = 32, kEntryBytes = 40;

function crc32(data) {
  let crc = 0xffffffff;
  for (const byte of data) {
    crc ^= byte;
    for (let bit = 0; bit < 8; ++bit) crc = (crc >>> 1) ^ (crc & 1 ? 0xedb88320 : 0);
  }
  return (crc ^ 0xffffffff) >>> 0;
}

export class FileWriter {
  #sections = [];

  add(kind, level, data, count, bits, topZoom) { this.#sections.push({ kind, level, data, count, bits, topZoom }); }

  bytes() {
    const table = Buffer.alloc(kEntryBytes * this.#sections.length), parts = [];
    let offset = kHeaderBytes + table.length;
    this.#sections.forEach((s, i) => {
      const at = kEntryBytes * i;
      table.writeUInt32LE(s.kind, at);
      table.writeUInt32LE(s.level, at + 4);
      table.writeBigUInt64LE(BigInt(offset), at + 8);
      table.writeBigUInt64LE(BigInt(s.data.length), at + 16);
      table.writeUInt32LE(s.count, at + 24);
      table.writeUInt32LE(s.bits, at + 28);
      table.writeUInt32LE(s.topZoom, at + 32);
      const padding = (8 - s.data.length % 8) % 8;
      parts.push(s.data, Buffer.alloc(padding));
      offset += s.data.length + padding;
    });
    const header = Buffer.alloc(kHeaderBytes);
    header.write(kMagic, 0, 'latin1');
    header.writeUInt32LE(kVersion, 8);
    header.writeUInt32LE(this.#sections.length, 12);
    header.writeBigUInt64LE(BigInt(offset), 16);
    header.writeUInt32LE(crc32(table), 24);
    return Buffer.concat([header, table, ...parts]);
  }
}

// All names behind each other, each text once.
export class Strings {
  #known = new Map();
  #parts = [];
  #size = 0;

  add(text) {
    const known = this.#known.get(text);
    if (known) return known;
    const data = Buffer.from(text).subarray(0, 255), place = { offset: this.#size, length: data.length };
    this.#known.set(text, place);
    this.#parts.push(data);
    this.#size += data.length;
    return place;
  }

  bytes() { return Buffer.concat(this.#parts); }
}
