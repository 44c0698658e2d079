document.querySelector("button").addEventListener("click", () => {
  document.querySelector("p").textContent = `Hello, ${document.querySelector("input").value}`;
});
