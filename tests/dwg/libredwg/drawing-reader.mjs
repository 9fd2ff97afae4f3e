// Reads DWG files with LibreDWG and reduces them to what we compare.

import { Dwg_File_Type, LibreDwg } from '@mlightcad/libredwg-web';
import { canonicalPolyline, segmentsOf } from './intended-drawing.mjs';
import { decodedAgain } from './windows-1252.mjs';

const closedFlag = 512;

// Header variables that the library knows but does not convert by itself.
const furtherVariables = [
  'CMLSCALE', 'DIMFRAC', 'FACETRES', 'FLAGS', 'ISOLINES', 'PELLIPSE', 'SPLFRAME', 'STYLESHEET', 'TEXTQLTY',
  'TSTACKALIGN', 'TSTACKSIZE', 'unit1_name', 'unit1_ratio', 'unit2_name', 'unit2_ratio', 'unit3_name',
  'unit3_ratio', 'unit4_name', 'unit4_ratio', 'unknown_8', 'unknown_9', 'unknown_54', 'unknown_55', 'unknown_56',
  'unknown_57',
];
const referenceVariables = [
  'APPID_CONTROL_OBJECT', 'BLOCK_CONTROL_OBJECT', 'BLOCK_RECORD_MSPACE', 'BLOCK_RECORD_PSPACE', 'CELTYPE', 'CLAYER',
  'CMLSTYLE', 'DICTIONARY_ACAD_GROUP', 'DICTIONARY_ACAD_MLINESTYLE', 'DICTIONARY_LAYOUT', 'DICTIONARY_NAMED_OBJECT',
  'DICTIONARY_PLOTSETTINGS', 'DICTIONARY_PLOTSTYLENAME', 'DIMBLK', 'DIMBLK1', 'DIMBLK2', 'DIMLDRBLK', 'DIMSTYLE',
  'DIMSTYLE_CONTROL_OBJECT', 'DIMTXSTY', 'LAYER_CONTROL_OBJECT', 'LTYPE_BYBLOCK', 'LTYPE_BYLAYER', 'LTYPE_CONTINUOUS', 'LTYPE_CONTROL_OBJECT',
  'PUCSBASE', 'PUCSNAME', 'PUCSORTHOREF', 'STYLE_CONTROL_OBJECT', 'TEXTSTYLE', 'UCSBASE', 'UCSNAME', 'UCSORTHOREF',
  'UCS_CONTROL_OBJECT', 'VIEW_CONTROL_OBJECT', 'VPORT_CONTROL_OBJECT', 'VX_CONTROL_OBJECT',
  'VX_TABLE_RECORD',
];
// What the drawing decides; it is compared apart.
const drawnVariables = ['INSUNITS', 'EXTMIN', 'EXTMAX', 'LIMMIN', 'LIMMAX', 'HANDSEED', 'FINGERPRINTGUID', 'VERSIONGUID'];

function flat({ x, y, z = 0 }) {
  if (z !== 0) {
    throw new Error(`a point lies off the drawing plane: ${z}`);
  }
  return [x, y];
}

function polyline({ layer, flag, vertices }) {
  const points = vertices.map(flat);
  const bulges = vertices.map((vertex) => vertex.bulge);
  if (bulges.at(-1) !== 0) {
    throw new Error('a polyline closes with an arc, which some readers draw straight');
  }
  return canonicalPolyline(layer, segmentsOf({ points, bulges, closed: (flag & closedFlag) !== 0 }));
}

function shape(entity) {
  switch (entity.type) {
    case 'LINE':
      return { kind: 'line', layer: entity.layer, from: flat(entity.startPoint), to: flat(entity.endPoint) };
    case 'CIRCLE':
      return { kind: 'circle', layer: entity.layer, centre: flat(entity.center), radius: entity.radius };
    case 'LWPOLYLINE':
      return polyline(entity);
    default:
      throw new Error(`an entity of an unexpected kind: ${entity.type}`);
  }
}

/// Everything of an entity that its layer is meant to decide.
function checkDrawnByLayer({ colorIndex, lineType, lineweight, isVisible }) {
  const found = JSON.stringify([colorIndex, lineType, lineweight, isVisible]);
  if (found !== '[256,"",29,true]') {
    throw new Error(`an entity has a look of its own: ${found}`);
  }
}

function entitiesOf(database) {
  return database.entities.map((entity) => {
    checkDrawnByLayer(entity);
    return shape(entity);
  });
}

function extentsOf({ EXTMIN: min, EXTMAX: max }) {
  if (min.x > max.x) {
    return null;
  }
  return { min: flat(min), max: flat(max) };
}

function showsAll(viewport, extents) {
  const { center, viewHeight, aspectRatio } = viewport;
  const reach = [(viewHeight * aspectRatio) / 2, viewHeight / 2];
  const corners = extents ? [extents.min, extents.max] : [];
  return (
    viewHeight > 0 &&
    corners.every((corner) => flat(center).every((middle, axis) => Math.abs(corner[axis] - middle) <= reach[axis]))
  );
}

function without(object, names) {
  return Object.fromEntries(Object.entries(object).filter(([name]) => !names.includes(name)));
}

function checkGuids({ FINGERPRINTGUID, VERSIONGUID }) {
  const pattern = /^\{[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}\}$/;
  if (!pattern.test(FINGERPRINTGUID) || !pattern.test(VERSIONGUID) || FINGERPRINTGUID === VERSIONGUID) {
    throw new Error(`not two GUIDs: ${FINGERPRINTGUID} ${VERSIONGUID}`);
  }
}

export class DrawingReader {
  #library;

  constructor(library) {
    this.#library = library;
  }

  static async create(folder) {
    return new DrawingReader(await LibreDwg.create(`${folder}/node_modules/@mlightcad/libredwg-web/wasm`));
  }

  /// Throws when the library complains of anything, a wrong check sum included.
  read(bytes) {
    const complaints = [];
    const { warn } = console;
    console.warn = (...words) => complaints.push(words.join(' '));
    let file;
    try {
      file = this.#library.dwg_read_data(bytes, Dwg_File_Type.DWG);
    } finally {
      console.warn = warn;
    }
    try {
      if (complaints.length > 0) {
        throw new Error(complaints.join('; '));
      }
      return this.#reduce(file, this.#library.convert(file));
    } finally {
      this.#library.dwg_free(file);
    }
  }

  #reduce(file, database) {
    const { header, tables, objects } = database;
    const extents = extentsOf(header);
    const modelSpace = tables.BLOCK_RECORD.entries.find(({ name }) => name === '*Model_Space');
    const modelLayout = objects.LAYOUT.find(({ layoutName }) => layoutName === 'Model');
    const limits = { min: flat(header.LIMMIN), max: flat(header.LIMMAX) };
    checkGuids(header);
    this.#checkLayoutAgrees(modelLayout, header);
    return {
      title: decodedAgain(modelSpace.description),
      entities: entitiesOf(database),
      unit: { 4: 'mm', 5: 'cm' }[header.INSUNITS],
      linetypeScales: [...new Set(database.entities.map(({ lineTypeScale }) => lineTypeScale))],
      extents,
      limits,
      viewShowsAll: showsAll(tables.VPORT.entries[0], extents),
      objectCount: this.#library.dwg_get_num_objects(file),
      nextHandle: this.#reference(file, 'HANDSEED'),
      sameInEveryDrawing: this.#sameInEveryDrawing(file, database),
    };
  }

  #checkLayoutAgrees({ minLimit, maxLimit, minExtent, maxExtent }, { LIMMIN, LIMMAX, EXTMIN, EXTMAX }) {
    const layout = JSON.stringify([minLimit, maxLimit, minExtent, maxExtent]);
    if (layout !== JSON.stringify([LIMMIN, LIMMAX, EXTMIN, EXTMAX])) {
      throw new Error(`the model layout has other limits or extents than the header: ${layout}`);
    }
  }

  #sameInEveryDrawing(file, { header, tables, objects, classes }) {
    const drawnByLayout = ['minLimit', 'maxLimit', 'minExtent', 'maxExtent'];
    const same = {
      version: this.#library.dwg_get_version_type(file).hdr,
      codePage: this.#library.dwg_get_codepage(file),
      header: without(header, [...drawnVariables, ...referenceVariables]),
      furtherHeader: this.#variables(furtherVariables, (name) => this.#library.dwg_dynapi_header_data(file, name)),
      references: this.#variables(referenceVariables, (name) => this.#reference(file, name)),
      objectsByType: this.#objectsByType(file),
      classes,
      tables: {
        ...Object.fromEntries(Object.entries(tables).map(([name, { entries }]) => [name, entries])),
        VPORT: tables.VPORT.entries.map((entry) => without(entry, ['center', 'viewHeight'])),
        BLOCK_RECORD: tables.BLOCK_RECORD.entries.map((entry) => without(entry, ['entities', 'description'])),
      },
      layouts: objects.LAYOUT.map((layout) => without(layout, layout.layoutName === 'Model' ? drawnByLayout : [])),
      // The library garbles the names of items.
      dictionaries: objects.DICTIONARY.map(({ handle, ownerHandle, entries }) => ({
        handle, ownerHandle, items: Object.values(entries),
      })),
    };
    return JSON.parse(JSON.stringify(same)); // leaves out what has no value
  }

  #variables(names, value) {
    return Object.fromEntries(names.map((name) => [name, value(name)]));
  }

  /// A reference as its kind and handle, for example "5.1F".
  #reference(file, variable) {
    const reference = this.#library.dwg_dynapi_header_data(file, variable);
    const { code, value } = this.#library.dwg_ref_get_handle_object(reference);
    return `${code}.${value.toString(16).toUpperCase()}`;
  }

  /// How many objects of each type there are, entities of the drawing left out.
  #objectsByType(file) {
    const drawn = [18, 19, 77];
    const counts = {};
    for (let index = 0; index < this.#library.dwg_get_num_objects(file); ++index) {
      const type = this.#library.dwg_object_get_fixedtype(this.#library.dwg_get_object(file, index));
      if (!drawn.includes(type)) {
        counts[type] = (counts[type] ?? 0) + 1;
      }
    }
    return counts;
  }
}
