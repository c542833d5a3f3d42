// The journal as a person would tell it: lines that are one thing are one piece of it.
import { say } from "../ui/language.js";
import { explain } from "./meaning.js";

const sameWithin = 5; // seconds between lines that are one piece
const detailWithin = 1; // seconds after a piece, for lines that tell nothing by themselves
const many = 3; // lines of one piece: a fade, where two are only two changes

export class Story {
  pieces = []; // {kind, key, text, entries, told}

  // Gives those pieces that are new or have grown.
  add(entries) {
    return new Set(entries.map((entry) => this.#add(entry)));
  }

  #add(entry) {
    const { kind, story } = explain(entry.text);
    const last = this.pieces.at(-1);
    const since = last ? entry.time - last.entries.at(-1).time : Infinity;
    const isDetail = story === null || story.isPartOf?.includes(last?.key);
    if (isDetail && since <= detailWithin) return this.#extend(last, entry);
    if (story !== null && last?.key === story.key && since <= sameWithin)
      return this.#extend(last, entry, story);
    // What is told takes along what was noted at the same moment.
    if (story !== null && last?.key === null && since === 0) {
      Object.assign(last, { key: story.key, kind, told: 0 });
      return this.#extend(last, entry, story);
    }
    const piece = {
      kind,
      key: story?.key ?? null,
      text: story?.text ?? say("The system's own notes"),
      entries: [entry],
      told: story ? 1 : 0,
    };
    this.pieces.push(piece);
    return piece;
  }

  #extend(piece, entry, story = null) {
    piece.entries.push(entry);
    if (story === null) return piece;
    piece.told += 1;
    piece.text = piece.told >= many ? (story.often ?? story.text) : story.text;
    return piece;
  }
}
