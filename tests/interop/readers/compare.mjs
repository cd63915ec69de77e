// Has each reader read each sample, and compares what it makes of the file with the record that the file was made of.
//   node compare.mjs FOLDER
// Both readers hand out a picture of intensities in steps of a degree, relative to the largest, and both take the square
// of each value first (docs/readers.md): the record's values are squared too and put in proportion between their
// angles. Ends with status 1 where a picture differs by more than a thousandth of the largest value, or a reader fails,
// unless docs/readers.md has a row for it.
import fs from "node:fs";
import path from "node:path";
import { FloatType } from "three";
import { IESLoader } from "three/examples/jsm/loaders/IESLoader.js";
import { LoadIESData } from "@babylonjs/core/Lights/IES/iesLoader.js";

const kMostApart = 0.001;
const kDegreesDown = 180;

// Each takes the bytes of a file and answers with relative intensities, 180 for each horizontal degree.
const readers = {
  three(bytes) {
    const loader = new IESLoader();
    loader.type = FloatType;
    return loader.parse(new TextDecoder().decode(bytes)).image.data;
  },
  babylon(bytes) {
    return LoadIESData(new Uint8Array(bytes)).data;
  },
};

// What docs/readers.md has a row for: the beginning of a sample's name, and the reader.
const known = [
  ["tilt without angles", "three"],
  ["tilt", "babylon"],
  ["fold", "babylon"],
  ["1,000", "babylon"],
  ["exponents", "babylon"],
  ["long decimal tails", "babylon"],
];

function neighbours(angles, degrees) {
  let low = 0;
  while (low + 2 < angles.length && angles[low + 1] <= degrees) ++low;
  const high = Math.min(low + 1, angles.length - 1);
  const width = angles[high] - angles[low];
  return { low, high, share: width > 0 ? (degrees - angles[low]) / width : 0 };
}

function between(low, high, share) {
  return low + (high - low) * share;
}

/** The largest difference between a picture and a record, and how many places were compared. */
function difference(picture, record) {
  const squares = record.candela.map((row) => row.map((value) => value * value));
  const largest = Math.max(...squares.map((row) => row.reduce((a, b) => Math.max(a, b), 0)));
  const lastAcross = record.horizontal.at(-1);
  let most = 0;
  let places = 0;
  for (let h = 0; h < 360 && (lastAcross === 0 || h <= lastAcross); ++h) {
    const across = neighbours(record.horizontal, h);
    for (let v = 0; v < kDegreesDown && v <= record.vertical.at(-1); ++v) {
      const down = neighbours(record.vertical, v);
      const at = (row) => between(squares[row][down.low], squares[row][down.high], down.share);
      const expected = between(at(across.low), at(across.high), across.share) / largest;
      const read = picture[v + h * kDegreesDown];
      most = Math.max(most, Number.isFinite(read) ? Math.abs(read - expected) : Infinity);
      ++places;
    }
  }
  return { most, places };
}

function judge(read, bytes, record) {
  try {
    const { most, places } = difference(read(bytes), record);
    const says = `${places} places, apart by ${most.toExponential(1)} at most`;
    return { agrees: most <= kMostApart, says };
  } catch (error) {
    return { agrees: false, says: `fails: ${error.message.split("\n")[0]}` };
  }
}

let unexpected = 0;
const folder = process.argv[2];
const samples = fs.readdirSync(folder).filter((name) => name.endsWith(".ies"));
for (const sample of samples.sort()) {
  const name = sample.slice(0, -".ies".length);
  const bytes = fs.readFileSync(path.join(folder, sample));
  const record = JSON.parse(fs.readFileSync(path.join(folder, `${name}.json`), "utf8"));
  for (const [reader, read] of Object.entries(readers)) {
    const { agrees, says } = judge(read, bytes, record);
    const isKnown = known.some(([beginning, by]) => name.startsWith(beginning) && reader === by);
    if (agrees === isKnown) ++unexpected;
    const verdict = agrees ? (isKnown ? "AGREES NOW" : "agrees") : isKnown ? "differs, as known" : "DIFFERS";
    console.log(`${name.padEnd(32)} ${reader.padEnd(8)} ${verdict}: ${says}`);
  }
}
console.log(`${samples.length} files, ${Object.keys(readers).length} readers, ${unexpected} unexpected`);
process.exit(unexpected > 0 ? 1 : 0);
