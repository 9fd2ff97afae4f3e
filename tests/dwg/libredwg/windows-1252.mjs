// The code page of the drawings. Some releases of Node.js decode it as Latin-1, so we do not rely on TextDecoder.

const from80To9f = '€\x81‚ƒ„…†‡ˆ‰Š‹Œ\x8dŽ\x8f\x90‘’“”•–—˜™š›œ\x9džŸ';

/// Puts right what was decoded as Latin-1.
export function decodedAgain(text) {
  return text.replace(/[\x80-\x9f]/g, (character) => from80To9f[character.charCodeAt(0) - 0x80]);
}

/// The text with a question mark for everything that the code page lacks.
export function inCodePage(text) {
  const known = (character) => /[ -~\xa0-\xff]/.test(character) || from80To9f.includes(character);
  return Array.from(text, (character) => (known(character) ? character : '?')).join('');
}
