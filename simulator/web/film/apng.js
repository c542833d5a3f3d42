// Puts PNGs of one size together into one animated PNG.

const signature = Uint8Array.of(0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a);
const longest = 65_535; // milliseconds that one frame can be told to last

const table = Uint32Array.from({ length: 256 }, (_, byte) => {
  let value = byte;
  for (let bit = 0; bit < 8; ++bit) value = value & 1 ? 0xedb88320 ^ (value >>> 1) : value >>> 1;
  return value;
});

function checksum(bytes) {
  let value = 0xffffffff;
  for (const byte of bytes) value = table[(value ^ byte) & 0xff] ^ (value >>> 8);
  return (value ^ 0xffffffff) >>> 0;
}

function chunk(kind, content) {
  const bytes = new Uint8Array(content.length + 12);
  const view = new DataView(bytes.buffer);
  view.setUint32(0, content.length);
  bytes.set(new TextEncoder().encode(kind), 4);
  bytes.set(content, 8);
  view.setUint32(content.length + 8, checksum(bytes.subarray(4, content.length + 8)));
  return bytes;
}

// [{kind, content}…] of a PNG.
function chunksOf(png) {
  const view = new DataView(png.buffer, png.byteOffset);
  const all = [];
  for (let at = signature.length; at < png.length;) {
    const length = view.getUint32(at);
    const kind = new TextDecoder().decode(png.subarray(at + 4, at + 8));
    all.push({ kind, content: png.subarray(at + 8, at + 8 + length) });
    at += length + 12;
  }
  return all;
}

function numbers(...values) {
  const view = new DataView(new ArrayBuffer(4 * values.length));
  values.forEach((value, index) => view.setUint32(4 * index, value));
  return new Uint8Array(view.buffer);
}

function joined(one, other) {
  const all = new Uint8Array(one.length + other.length);
  all.set(one);
  all.set(other, one.length);
  return all;
}

// That it lasts so long, over the whole picture, in place of the one before.
function control(number, width, height, lasts) {
  const content = new Uint8Array(26);
  content.set(numbers(number, width, height, 0, 0));
  const view = new DataView(content.buffer);
  view.setUint16(20, Math.min(longest, Math.round(lasts)));
  view.setUint16(22, 1000);
  return chunk("fcTL", content);
}

// `frames`: [{png: Uint8Array, lasts: milliseconds}…], at least one. A Blob.
export function animated(frames) {
  const header = chunksOf(frames[0].png).find(({ kind }) => kind === "IHDR").content;
  const size = new DataView(header.buffer, header.byteOffset);
  const parts = [signature, chunk("IHDR", header), chunk("acTL", numbers(frames.length, 0))];
  let number = 0;
  frames.forEach(({ png, lasts }, index) => {
    parts.push(control(number++, size.getUint32(0), size.getUint32(4), lasts));
    for (const { kind, content } of chunksOf(png)) {
      if (kind !== "IDAT") continue;
      if (index === 0) parts.push(chunk("IDAT", content));
      else parts.push(chunk("fdAT", joined(numbers(number++), content)));
    }
  });
  parts.push(chunk("IEND", new Uint8Array()));
  return new Blob(parts, { type: "image/png" });
}
