// node compare-drawings.mjs SAMPLES
//
// Compares each DWG file of a folder with the JSON file beside it that says what it was meant to hold. Then changes
// every single value of what was meant, one at a time, and makes sure that the comparison notices.

import { readFileSync, readdirSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { DrawingReader } from './drawing-reader.mjs';
import { intendedDrawing } from './intended-drawing.mjs';

const here = dirname(fileURLToPath(import.meta.url));
// Some values are computed, on each side in a way of its own.
const computedValues = ['extents', 'limits', 'aspectRatio'];
const tolerance = 1e-12;
const mostChanges = 400;

const readJson = (path) => JSON.parse(readFileSync(path, 'utf8'));
const isBranch = (value) => typeof value === 'object' && value !== null;

function sameLeaf(path, wanted, found) {
  if (wanted === found) {
    return true;
  }
  const computed = computedValues.some((name) => path.includes(name));
  return computed && Math.abs(wanted - found) <= tolerance * Math.max(1, Math.abs(wanted));
}

/// The library also shows what only later releases hold; same-in-every-drawing.json lists what counts.
function comparedKeys(wanted, found, path) {
  const onlyListed = path[0] === 'sameInEveryDrawing' && !Array.isArray(wanted);
  return onlyListed ? Object.keys(wanted) : [...new Set([...Object.keys(wanted), ...Object.keys(found)])];
}

/// The differences between two trees of values, each as a line of text.
function differences(wanted, found, path = []) {
  if (!isBranch(wanted) || !isBranch(found)) {
    const same = sameLeaf(path, wanted, found);
    return same ? [] : [`${path.join('.')}: ${JSON.stringify(wanted)} was meant, ${JSON.stringify(found)} is there`];
  }
  return comparedKeys(wanted, found, path).flatMap((key) => differences(wanted[key], found[key], [...path, key]));
}

/// The paths of all values of a tree that are not themselves trees.
function leaves(tree, path = []) {
  return Object.entries(tree).flatMap(([key, value]) =>
    isBranch(value) ? leaves(value, [...path, key]) : [[...path, key]]
  );
}

function changedValue(value) {
  switch (typeof value) {
    case 'number':
      return value === 0 ? 1e-6 : -value;
    case 'boolean':
      return !value;
    case 'string':
      return value === 'line' ? 'circle' : `${value}x`;
    default:
      return 1;
  }
}

/// A copy of a tree in which the value at one path is another.
function changedAt(tree, path) {
  const copy = JSON.parse(JSON.stringify(tree));
  const branch = path.slice(0, -1).reduce((node, key) => node[key], copy);
  branch[path.at(-1)] = changedValue(branch[path.at(-1)]);
  return copy;
}

/// Changes of what was meant that the comparison does not notice.
function unnoticedChanges(meant, same, found) {
  const notices = (change) => {
    try {
      return differences(change(), found).length > 0;
    } catch {
      return true; // no drawing at all
    }
  };
  return [
    ...leaves(meant).filter((path) => !notices(() => intendedDrawing(changedAt(meant, path), same))),
    ...leaves(same).filter((path) => !notices(() => intendedDrawing(meant, changedAt(same, path)))),
  ].map((path) => `a change of ${path.join('.')} is not noticed`);
}

function faultsOf(reader, path, same) {
  try {
    const meant = readJson(`${path}.json`);
    const found = reader.read(readFileSync(`${path}.dwg`));
    const faults = differences(intendedDrawing(meant, same), found);
    if (faults.length === 0 && leaves(meant).length <= mostChanges) {
      faults.push(...unnoticedChanges(meant, same, found));
    }
    return faults;
  } catch (error) {
    return [error.message];
  }
}

function compareAll(reader, folder, names, same) {
  let failed = 0;
  for (const name of names) {
    const faults = faultsOf(reader, join(folder, name), same);
    failed += faults.length > 0 ? 1 : 0;
    faults.slice(0, 20).forEach((fault) => console.error(`${name}: ${fault}`));
  }
  console.log(`${names.length} drawings compared, ${failed} differ`);
  return failed === 0 && names.length > 0;
}

const folder = process.argv[2];
const names = readdirSync(folder).filter((file) => file.endsWith('.dwg')).map((file) => file.slice(0, -4)).sort();
const same = readJson(join(here, 'same-in-every-drawing.json'));
process.exitCode = compareAll(await DrawingReader.create(here), folder, names, same) ? 0 : 1;
