// The folder that dwg_samples fills: NAME.dwg, and NAME.json which says what it was meant to hold.

import { readFileSync, readdirSync } from 'node:fs';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { DrawingReader } from './drawing-reader.mjs';

const here = dirname(fileURLToPath(import.meta.url));
const readJson = (path) => JSON.parse(readFileSync(path, 'utf8'));

/// What does not depend on the drawing.
export const sameInEveryDrawing = readJson(join(here, 'same-in-every-drawing.json'));

export class SampleFolder {
  #path;
  #reader;

  constructor(path, reader) {
    this.#path = path;
    this.#reader = reader;
  }

  static async open(path) {
    return new SampleFolder(path, await DrawingReader.create(here));
  }

  names() {
    return readdirSync(this.#path).filter((file) => file.endsWith('.dwg')).map((file) => file.slice(0, -4)).sort();
  }

  /// Title and entities as dwg_samples was given them.
  given(name) {
    return readJson(join(this.#path, `${name}.json`));
  }

  /// What the file holds.
  read(name) {
    return this.#reader.read(readFileSync(join(this.#path, `${name}.dwg`)));
  }
}
