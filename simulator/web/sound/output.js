// The element that plays the files, behind a gain that ramps: the host's fade goes in steps of a
// tenth of a second, which must not be heard as steps.

const rampTime = 0.1; // seconds

export class SoundOutput {
  element = new Audio();
  #context = null;
  #gain = null;
  #level = 1;

  constructor() {
    this.element.preload = "auto";
  }

  get allowed() {
    return this.#context?.state === "running";
  }

  // What is heard, after the gain; for measuring. null before `allow`.
  get node() {
    return this.#gain;
  }

  get level() {
    return this.#gain ? this.#gain.gain.value : this.#level;
  }

  // Must be called by a person's gesture, as browsers ask; true when sound may be made.
  async allow() {
    if (this.#context === null) this.#build();
    if (this.#context.state !== "running") await this.#context.resume();
    return this.allowed;
  }

  #build() {
    this.#context = new AudioContext();
    this.#gain = this.#context.createGain();
    this.#gain.gain.value = this.#level;
    this.#context
      .createMediaElementSource(this.element)
      .connect(this.#gain)
      .connect(this.#context.destination);
  }

  setLevel(level) {
    this.#level = level;
    if (this.#gain === null) return;
    const now = this.#context.currentTime;
    this.#gain.gain.cancelAndHoldAtTime?.(now);
    this.#gain.gain.setValueAtTime(this.#gain.gain.value, now);
    this.#gain.gain.linearRampToValueAtTime(level, now + rampTime);
  }
}
