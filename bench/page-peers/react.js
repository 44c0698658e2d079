import { createElement, useState } from "react";
import { createRoot } from "react-dom/client";
import { form } from "./form.js";

createRoot(document.querySelector("main")).render(createElement(form(createElement, useState)));
