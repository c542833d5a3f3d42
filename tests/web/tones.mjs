// Music for tests.

const sampleRate = 8000;

// A plain tone as a WAV file, as loud from its beginning to its end.
export function tone(seconds) {
  const samples = seconds * sampleRate;
  const file = Buffer.alloc(44 + samples * 2);
  file.write("RIFF", 0);
  file.writeUInt32LE(36 + samples * 2, 4);
  file.write("WAVEfmt ", 8);
  for (const [at, bytes, value] of [
    [16, 4, 16],
    [20, 2, 1],
    [22, 2, 1],
    [24, 4, sampleRate],
    [28, 4, sampleRate * 2],
    [32, 2, 2],
    [34, 2, 16],
  ])
    file.writeUIntLE(value, at, bytes);
  file.write("data", 36);
  file.writeUInt32LE(samples * 2, 40);
  for (let i = 0; i < samples; ++i)
    file.writeInt16LE(
      Math.round(12000 * Math.sin((2 * Math.PI * 330 * i) / sampleRate)),
      44 + 2 * i,
    );
  return file;
}

// The same with a picture, the content of an image file, in a tag behind the sound.
export function toneWithCover(seconds, picture) {
  const about = Buffer.from("\0image/gif\0\x03\0", "latin1"); // text as Latin-1, a front cover
  const frame = Buffer.alloc(10);
  frame.write("APIC");
  frame.writeUInt32BE(about.length + picture.length, 4);
  const size = frame.length + about.length + picture.length;
  const head = Buffer.from("ID3\x03\0\0    ", "latin1");
  for (let byte = 0; byte < 4; ++byte) head[9 - byte] = (size >> (7 * byte)) & 0x7f;
  const tag = Buffer.concat([head, frame, about, picture, Buffer.alloc(size % 2)]);
  const chunk = Buffer.alloc(8);
  chunk.write("id3 ");
  chunk.writeUInt32LE(tag.length, 4);
  const file = Buffer.concat([tone(seconds), chunk, tag]);
  file.writeUInt32LE(file.length - 8, 4);
  return file;
}
