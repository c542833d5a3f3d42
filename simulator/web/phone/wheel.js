// A wheel by keys, as the pattern of a spin button has it: up is more, Home and End are its ends,
// and digits that are typed choose their row.

const steps = { ArrowUp: 1, ArrowRight: 1, ArrowDown: -1, ArrowLeft: -1, PageUp: 5, PageDown: -5 };
const whole = 100; // twentieths: more than a slider has
const sliderStep = 5; // percent
const typedWithin = 1200; // milliseconds between digits of one number

const isDigit = (letter) => /^\p{Nd}$/u.test(letter);

// Of any script: their digits follow one another, from nought.
function digit(letter) {
  const code = letter.codePointAt(0);
  let value = 0;
  while (value < 9 && isDigit(String.fromCodePoint(code - value - 1))) ++value;
  return value;
}

// The number that a text is; NaN if it is none.
export function numberIn(text) {
  const letters = [...(text ?? "").trim()];
  if (letters.length === 0 || !letters.every(isDigit)) return NaN;
  return letters.reduce((value, letter) => 10 * value + digit(letter), 0);
}

// How much a row is more than the one before, by the rows that are drawn.
function stepOf(element) {
  if (element.dataset.role === "slider") return sliderStep;
  const shown = [...element.querySelectorAll("text")].map((text) => numberIn(text.textContent));
  const numbers = [...new Set(shown.filter((each) => !Number.isNaN(each)))].sort((a, b) => a - b);
  const apart = numbers.slice(1).map((each, index) => each - numbers[index]);
  return apart.length > 0 ? Math.min(...apart) : 1;
}

// How far a wheel can be turned down and up from its row; a slider stops by itself.
function reach({ dataset }) {
  if (dataset.row === undefined) return [-whole, whole];
  const row = Number(dataset.row);
  return [-row, Number(dataset.rows) - 1 - row];
}

export class Wheel {
  #typed = "";
  #typedAt = -Infinity;
  #typedIn = null; // the element
  #from = null; // {number, down, up} before the first digit
  #turned = 0; // rows since

  // By how many rows a key turns the wheel; undefined for keys that do not.
  rows(element, event) {
    const [down, up] = reach(element);
    if (isDigit(event.key)) return this.#type(element, event);
    this.#typedIn = null;
    if (event.key === "Home") return down;
    if (event.key === "End") return up;
    return steps[event.key];
  }

  #type(element, { key, timeStamp }) {
    const goesOn = this.#typedIn === element && timeStamp - this.#typedAt < typedWithin;
    this.#typed = goesOn ? this.#typed + key : key;
    this.#typedAt = timeStamp;
    if (!goesOn) this.#begin(element);
    const { number, down, up } = this.#from;
    const wanted = Math.round((numberIn(this.#typed) - number) / stepOf(element));
    if (!Number.isFinite(wanted)) return 0;
    const rows = Math.max(down, Math.min(up, wanted)) - this.#turned;
    this.#turned += rows;
    return rows;
  }

  // Digits count from where the wheel was before the first: it may be on its way.
  #begin(element) {
    const [down, up] = reach(element);
    const now = element.getAttribute("aria-valuenow");
    this.#typedIn = element;
    this.#turned = 0;
    this.#from = { number: now === null ? NaN : Number(now), down, up };
  }
}
