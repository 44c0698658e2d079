// The form of plain.html as a component of either library.
export const form = (element, useState) => () => {
  const [email, setEmail] = useState(""), [greeted, setGreeted] = useState("");
  return [
    element("h1", { key: 1 }, "Hello"),
    element("label", { key: 2 }, "E-mail ",
      element("input", { autoComplete: "username", value: email, onInput: event => setEmail(event.target.value) })),
    element("label", { key: 3 }, "Password ", element("input", { type: "password", autoComplete: "current-password" })),
    element("button", { key: 4, onClick: () => setGreeted(email) }, "Sign in"),
    element("p", { key: 5, role: "status" }, greeted && `Hello, ${greeted}`),
  ];
};
