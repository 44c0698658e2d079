# shellcheck shell=bash disable=SC2154,SC2034 # sourced by ./run and ./test, which set what is used here
# The page: what ./run web and ./test web do.

webBuild=build/web

# What drives the browser in tests, from npm, by the lock file.
installDriver() {
  local driver=$webBuild/driver
  installMissing webdriver
  command -v npm >/dev/null || installMissing npm  # some node brings its own
  export LEAFUND_WEB_DRIVER=$driver
  cmp -s tests/web/package-lock.json "$driver/package-lock.json" && return
  rm -rf "$driver"
  mkdir -p "$driver"
  cp tests/web/package{,-lock}.json "$driver"
  say "Installing what drives the browser (log: $webBuild/npm.log)"
  (cd "$driver" && npm ci --ignore-scripts --no-audit --no-fund) >"$webBuild/npm.log" 2>&1 && return
  rm -rf "$driver"
  fail "npm could not install it; see $webBuild/npm.log"
}

# Serves page and pictures from one server, and opens the page where there is a display.
runWeb() {
  installMissing web
  startPictureHost "$webBuild" "$PWD/tools/web.types"
  local server=$job
  buildTree web "$webBuild" site -DLEAFUND_PICTURE_HOST="$pictureHost" -DLEAFUND_TESTS=OFF
  ln -sf "$PWD/$webBuild/site"/* "$served/"
  if [[ -n ${DISPLAY:-}${WAYLAND_DISPLAY:-} ]] && command -v xdg-open >/dev/null; then
    xdg-open "$pictureHost/"
    say "Leafund is served at $pictureHost/ until you press Ctrl-C."
    wait "$server"
    return
  fi
  say "There is no display here: walking through the page in a browser that nobody sees instead."
  installDriver
  await node tests/web/walk.mjs "$pictureHost/" "$webBuild/tour"
}

# Builds the page with its tests, in $folder.
buildPageTests() {
  installMissing web
  installDriver
  local port
  port=$(ownPort "$webBuild")
  buildTree web "$folder" all -DLEAFUND_PICTURE_HOST="http://127.0.0.1:$port" -DLEAFUND_TESTS=ON
  export LEAFUND_PICTURE_PORT=$port
}

# The model that the random user's page is held to.
buildReference() {
  installMissing build test
  buildTree debug build/headless random_reference -DLEAFUND_QT=OFF
  reference=build/headless/tests/random/random_reference
}

# The suites of the page, a test in a page of its own.
testWeb() {
  enter web
  buildPageTests
  buildReference
  total=8
  local suite
  for suite in contract journeys; do
    runTool "$suite web" '^OK ' '^FAIL ' node tests/web/run.mjs "$folder" "$suite"
  done
  LEAFUND_BROWSER=firefox runTool "journeys firefox" '^OK ' '^FAIL ' node tests/web/run.mjs "$folder" journeys
  runTool "page" '^OK ' '^FAIL ' node tests/web/page.mjs "$folder"
  runRandomPage "random page" 1000 inside
  runRandomPage "random fingers" 100 outside
  LEAFUND_BROWSER=firefox runRandomPage "random firefox" 100 outside
  runTool "size of the page" '^OK ' '^FAIL ' tools/page-size "$folder/site"
}

runRandomPage() {
  runTool "$1" '^OK ' '^seed .* diverges' node tests/web/random.mjs "$folder" "$reference" "$2" "$RANDOM" "$3"
}
