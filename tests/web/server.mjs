// Serves the page, the pictures and whatever a test lays down, on a port of its own.
import { createHash } from "node:crypto";
import fs from "node:fs";
import http from "node:http";
import path from "node:path";

const types = { ".html": "text/html; charset=utf-8", ".js": "text/javascript", ".mjs": "text/javascript", ".css": "text/css",
  ".wasm": "application/wasm", ".svg": "image/svg+xml", ".jpg": "image/jpeg", ".webmanifest": "application/manifest+json" };

// `folders`: what a path begins with, and the folder its files lie in; the longest that fits counts. `whim`: how many
// milliseconds an answer takes, or "break" where there is none. `kept`: a browser may keep the answers, and asks
// whether they still hold.
export async function serve(folders, port = 0, whim = () => 0, kept = false) {
  const laid = new Map();
  const requests = [];
  const server = http.createServer(async (request, answer) => {
    const mood = whim();
    if (mood === "break") return request.destroy();
    if (mood > 0) await new Promise(done => setTimeout(done, mood));
    const { pathname, searchParams } = new URL(request.url, "http://host");
    answer.setHeader("access-control-allow-origin", "*");
    answer.setHeader("cache-control", kept ? "no-cache" : "no-store");
    requests.push(pathname);
    if (request.method === "POST") {
      const parts = [];
      request.on("data", part => parts.push(part));
      request.on("end", () => {
        laid.set(pathname, { body: Buffer.concat(parts), status: Number(searchParams.get("status")) });
        answer.end();
      });
      return;
    }
    const found = laid.get(pathname) ?? read(folders, pathname);
    if (!found) return answer.writeHead(404).end();
    if (kept) {
      const tag = `"${createHash("sha256").update(found.body).digest("base64url")}"`;
      answer.setHeader("etag", tag);
      if (request.headers["if-none-match"] === tag) return answer.writeHead(304).end();
    }
    answer.writeHead(found.status ?? 200, { "content-type": found.type ?? "application/octet-stream" });
    answer.end(found.body);
  });
  await new Promise(done => server.listen(port, "127.0.0.1", done));
  return { address: `http://127.0.0.1:${server.address().port}`, requests, lay: (pathname, body, type) => laid.set(pathname, { body, type }),
    close: () => { server.close(); server.closeAllConnections(); } };
}

function read(folders, pathname) {
  const prefix = Object.keys(folders).filter(each => pathname.startsWith(each)).sort((a, b) => b.length - a.length)[0];
  if (prefix === undefined) return null;
  const name = pathname.slice(prefix.length) || "index.html";
  if (name.includes("..")) return null;
  const file = path.join(folders[prefix], name);
  if (!fs.existsSync(file) || fs.statSync(file).isDirectory()) return null;
  return { body: fs.readFileSync(file), type: types[path.extname(file)] };
}
