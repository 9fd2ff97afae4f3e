// node notice-changes.mjs SAMPLES NAME...
// Changes every single value that a drawing was meant to hold, one at a time, and makes sure that the comparison
// with the file notices.

import { differences, isBranch } from './differences.mjs';
import { intendedDrawing } from './intended-drawing.mjs';
import { SampleFolder, sameInEveryDrawing } from './sample-folder.mjs';

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

/// False when what is meant, with a change in it, still equals what is there.
function isNoticed(intend, found) {
  try {
    return differences(intend(), found).length > 0;
  } catch {
    return true; // no drawing at all
  }
}

/// The changes that nobody notices.
function unnoticed(given, found) {
  const same = sameInEveryDrawing;
  return [
    ...leaves(given).filter((path) => !isNoticed(() => intendedDrawing(changedAt(given, path), same), found)),
    ...leaves(same).filter((path) => !isNoticed(() => intendedDrawing(given, changedAt(same, path)), found)),
  ].map((path) => path.join('.'));
}

const [folder, ...names] = process.argv.slice(2);
const samples = await SampleFolder.open(folder);
for (const name of names) {
  const changes = unnoticed(samples.given(name), samples.read(name));
  changes.forEach((change) => console.error(`${name}: a change of ${change} is not noticed`));
  process.exitCode = changes.length > 0 ? 1 : process.exitCode;
}
