// node compare-drawings.mjs SAMPLES
// Compares every DWG file of a folder with what it was meant to hold.

import { differences } from './differences.mjs';
import { intendedDrawing } from './intended-drawing.mjs';
import { SampleFolder, sameInEveryDrawing } from './sample-folder.mjs';

const mostFaultsShown = 20;

function faultsOf(samples, name) {
  try {
    return differences(intendedDrawing(samples.given(name), sameInEveryDrawing), samples.read(name));
  } catch (error) {
    return [error.message];
  }
}

const samples = await SampleFolder.open(process.argv[2]);
const names = samples.names();
let failed = 0;
for (const name of names) {
  const faults = faultsOf(samples, name);
  failed += faults.length > 0 ? 1 : 0;
  faults.slice(0, mostFaultsShown).forEach((fault) => console.error(`${name}: ${fault}`));
}
console.log(`${names.length} drawings compared, ${failed} differ`);
process.exitCode = failed === 0 && names.length > 0 ? 0 : 1;
