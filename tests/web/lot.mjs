// Draws lots, the same ones for the same seed.
export class Lot {
  constructor(seed) { this.state = seed >>> 0; }
  // Mulberry32, of 32 bits.
  draw() {
    let mixed = (this.state = (this.state + 0x6d2b79f5) >>> 0);
    mixed = Math.imul(mixed ^ (mixed >>> 15), mixed | 1);
    mixed ^= mixed + Math.imul(mixed ^ (mixed >>> 7), mixed | 61);
    return ((mixed ^ (mixed >>> 14)) >>> 0) / 2 ** 32;
  }
  below(count) { return Math.floor(this.draw() * count); }
  between(least, most) { return least + this.below(most - least + 1); }
  percent(chance) { return this.draw() * 100 < chance; }
  oneOf(list) { return list[this.below(list.length)]; }
}
