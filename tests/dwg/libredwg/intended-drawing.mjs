// What a drawing was meant to hold, in the form in which drawing-reader.mjs gives what a file does hold.

import { inCodePage } from './windows-1252.mjs';

const objectsOfAnEmptyDrawing = 40;
const firstEntityHandle = 0x36;
const emptyLimits = { min: [0, 0], max: [12, 9] };

/// The segments of a polyline, the one that closes it included.
export function segmentsOf({ points, bulges, closed }) {
  const ends = closed ? [...points.slice(1), points[0]] : points.slice(1);
  return ends.map((to, index) => ({ from: points[index], to, bulge: bulges[index] }));
}

/// A run of segments that returns to its start is closed, however it is written, and may begin anywhere: here, with
/// the segment whose text sorts first.
export function canonicalPolyline(layer, segments) {
  const returns = segments.length > 1 && segments[0].from.every((value, axis) => value === segments.at(-1).to[axis]);
  if (!returns) {
    return { kind: 'polyline', layer, closed: false, segments };
  }
  const texts = segments.map((segment) => JSON.stringify(segment));
  const first = texts.indexOf([...texts].sort()[0]);
  return { kind: 'polyline', layer, closed: true, segments: [...segments.slice(first), ...segments.slice(0, first)] };
}

/// The points of an arc that can lie farthest out: its ends, and where it crosses its circle's axes.
function outermostPoints({ from, to, bulge }) {
  if (Math.abs(bulge) < 1e-6) {
    return [from, to];
  }
  const sweep = 4 * Math.atan(bulge);
  const chord = [to[0] - from[0], to[1] - from[1]];
  const radius = Math.hypot(...chord) / (2 * Math.abs(Math.sin(sweep / 2)));
  const start = Math.atan2(chord[1], chord[0]) - sweep / 2 - Math.sign(sweep) * (Math.PI / 2);
  const centre = [from[0] - radius * Math.cos(start), from[1] - radius * Math.sin(start)];
  const points = [from, to];
  for (const [x, y] of [[1, 0], [0, 1], [-1, 0], [0, -1]]) {
    const turn = Math.sign(sweep) * (Math.atan2(y, x) - start);
    const passed = ((turn % (2 * Math.PI)) + 2 * Math.PI) % (2 * Math.PI);
    if (passed <= Math.abs(sweep)) {
      points.push([centre[0] + radius * x, centre[1] + radius * y]);
    }
  }
  return points;
}

function reachOf(entity) {
  switch (entity.kind) {
    case 'line':
      return [entity.from, entity.to];
    case 'circle': {
      const [x, y] = entity.centre;
      return [[x - entity.radius, y - entity.radius], [x + entity.radius, y + entity.radius]];
    }
    default:
      return segmentsOf(entity).flatMap(outermostPoints);
  }
}

function extentsOf(entities) {
  const points = entities.flatMap(reachOf);
  if (points.length === 0) {
    return null;
  }
  const along = (axis) => points.map((point) => point[axis]);
  const least = (numbers) => numbers.reduce((a, b) => Math.min(a, b));
  const most = (numbers) => numbers.reduce((a, b) => Math.max(a, b));
  return { min: [least(along(0)), least(along(1))], max: [most(along(0)), most(along(1))] };
}

/// @param drawing as dwg_samples writes it: title, entities, unit and scale of the linetypes.
/// @param sameInEveryDrawing everything that does not depend on the drawing.
export function intendedDrawing(drawing, sameInEveryDrawing) {
  const extents = extentsOf(drawing.entities);
  return {
    title: inCodePage(drawing.title).slice(0, 255),
    entities: drawing.entities.map((entity) =>
      entity.kind === 'polyline' ? canonicalPolyline(entity.layer, segmentsOf(entity)) : entity
    ),
    unit: drawing.unit,
    linetypeScales: drawing.entities.length > 0 ? [drawing.linetypeScale] : [],
    extents,
    limits: extents ?? emptyLimits,
    viewShowsAll: true,
    objectCount: objectsOfAnEmptyDrawing + drawing.entities.length,
    nextHandle: `0.${(firstEntityHandle + drawing.entities.length).toString(16).toUpperCase()}`,
    sameInEveryDrawing,
  };
}
