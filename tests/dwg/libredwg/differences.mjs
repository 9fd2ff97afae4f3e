// Compares two trees of values: what a drawing was meant to hold, and what its file does hold.

// Some values are computed, on each side in a way of its own.
const computedValues = ['extents', 'limits', 'aspectRatio'];
const tolerance = 1e-12;

export const isBranch = (value) => typeof value === 'object' && value !== null;

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

/// The differences between two trees, each as a line of text.
export function differences(wanted, found, path = []) {
  if (!isBranch(wanted) || !isBranch(found)) {
    const same = sameLeaf(path, wanted, found);
    return same ? [] : [`${path.join('.')}: ${JSON.stringify(wanted)} was meant, ${JSON.stringify(found)} is there`];
  }
  return comparedKeys(wanted, found, path).flatMap((key) => differences(wanted[key], found[key], [...path, key]));
}
