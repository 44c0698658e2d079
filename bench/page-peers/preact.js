import { h, render } from "preact";
import { useState } from "preact/hooks";
import { form } from "./form.js";

render(h(form(h, useState)), document.querySelector("main"));
