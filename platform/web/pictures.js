// Pictures: the program's bytes, the browser's pixels. What moves shows its first frame.
async function still(blob) {
  const bitmap = await createImageBitmap(blob);
  const canvas = new OffscreenCanvas(bitmap.width, bitmap.height);
  canvas.getContext("2d").drawImage(bitmap, 0, 0);
  return canvas.convertToBlob();
}

// What was drawn before stays until the new picture is ready; the browser keeps its pixels, and no more.
export async function setPicture(image, blob) {
  const turn = image.turn = {};
  if (blob && blob.type !== "image/jpeg") blob = await still(blob).catch(() => null);
  if (image.turn !== turn) return;
  URL.revokeObjectURL(image.src);
  if (blob) image.src = URL.createObjectURL(blob);
  else image.removeAttribute("src");
}

export function forgetPicture(image) {
  image.turn = null;
  URL.revokeObjectURL(image.src);
}
