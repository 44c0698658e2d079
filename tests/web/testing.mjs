// What the tests of the page say what must be so with.
export function expect(holds, what) {
  if (!holds) throw new Error(`not so: ${what}`);
}
