# shellcheck shell=bash disable=SC2154 # sourced by ./test, which sets what is used here
# What ./test long runs beside the short form, sourced by it: an hour or two, not minutes.

# Every suite but what measures pages, with the memory watched, and without a window also what nobody
# holds any more at the end. With one, threads of Qt end when they like, and the leak check fails on a
# thread that is ending ("Tracer caught signal 11", about once in 50 runs).
runAddressSuites() {
  enter asan-ubsan
  buildTree asan-ubsan "$folder" all -DLEAFUND_PICTURE_HOST="$pictureHost"
  export ASAN_OPTIONS=detect_stack_use_after_return=1
  export UBSAN_OPTIONS=print_stacktrace=1
  local suite
  for suite in $(suites); do
    [[ $suite == measure ]] && continue  # approval's pages, in other sizes
    [[ $suite =~ ^(model|platform|screens|shell|journeys|contract_headless|random|corpora)$ ]] ||
      ASAN_OPTIONS+=:detect_leaks=0
    runSuite "asan $suite" -L "^$suite\$"
    ASAN_OPTIONS=${ASAN_OPTIONS%:detect_leaks=0}
  done
  unset ASAN_OPTIONS UBSAN_OPTIONS
}

# What crosses from the threads of fetches and pixels to the main one, with every access to memory watched. Without
# a window: Qt Quick, which is not built for it, would tell of hundreds of races of its own.
runThreadSuites() {
  enter tsan
  buildTree tsan "$folder" "platform_tests contract_headless_tests pictures_tests"
  export TSAN_OPTIONS=suppressions=$PWD/tests/tsan-suppressions.txt
  runSuite "tsan fetches" -L '^(platform|contract_headless|pictures)$' \
    -R 'Session|MainQueue|Transfer|PixelWorker'
  unset TSAN_OPTIONS
}

# Opens the application on a virtual screen that then goes away, so that it ends by itself: the tour
# ends it from without, and nothing is counted then.
outliveDisplay() {
  local display=$results/display
  start Xvfb -displayfd 3 -screen 0 390x844x24 -nolisten tcp 3>"$display" 2>/dev/null
  written "$display" "the virtual screen"
  local screen=$job
  DISPLAY=:$(<"$display") QT_QPA_PLATFORM=xcb start "$folder/shell/leafund" >/dev/null 2>&1
  DISPLAY=:$(<"$display") timeout 60 xdotool search --sync --onlyvisible --name Leafund >/dev/null
  kill -TERM -- "-$screen"
  wait "$screen" "$job"
  started=("${started[@]:2}")
}

# How much of each room all suites together run, but that which measures pages.
runCoverage() {
  enter coverage
  buildTree coverage "$folder" all -DLEAFUND_PICTURE_HOST="$pictureHost"
  find "$folder" -name '*.gcda' -delete
  runSuite "all, counted" -LE '^measure$'
  outliveDisplay
  runTool coverage '^OK ' '^FAIL ' tools/coverage "$folder"
}

# What is too much for a build that nobody optimised; and what the work inside takes, in instructions, the
# same however busy the machine is.
runMany() {
  installMissing bench
  enter bench
  buildTree release "$folder" "screens_tests random_actions counted_bench" -DLEAFUND_BENCH=ON
  runSuite "a million showings" -L '^screens$' -R RowShowingsTest
  local random
  random=$(find "$folder" -name random_actions -type f)
  runTool "random actions" '^[0-9]+ sequences, ' '^seed .* diverges' "$random" --actions 500000 --seed "$RANDOM" --jobs "$jobs"
  runTool counts '^OK ' '^FAIL ' bench/count "$folder"
}

# The random user in the window of the program as ./test built it: inside, and from outside, which waits
# most of the time and goes on beside what comes next.
runWindow() {
  folder=build/debug results=build/debug/results
  startTool "random outside" tests/random/outside "$folder/shell/leafund" "$folder/tests/random/random_reference" \
    500 "$RANDOM"
  runTool "random window" '^[0-9]+ sequences, ' '^seed .* diverges' \
    "$folder/tests/random/random_window" --actions 20000 --seed "$RANDOM" --jobs "$jobs"
  runLargePictures
  runTool scarce ': done$' '^$^' tools/scarce "$folder/shell/leafund"
}

# Pictures that are large, or made to take long.
runLargePictures() {
  runTool "large pictures" ', 0 disagreements$' '^FAIL ' tools/pictures "$results/large-pictures" \
    --generate large --draw "$folder/tests/pictures/draw_pictures" --jobs 1
}

runWindow
runMany
runTool guide '^OK ' '^FAIL ' tools/follow --brief "A first change" "A new screen"
installMissing package
runTool packages '^OK ' '^FAIL ' tools/check-packages
finishTool "random outside" '^seed .* actions$' '^seed .* broken$'
startTool fuzz tools/fuzz all 60  # one processor's work, while the suites wait for windows and servers
runAddressSuites
finishTool fuzz ' 0 findings' ' [1-9][0-9]* findings'
runThreadSuites
runCoverage
runTool mutants '^CAUGHT ' '^(SURVIVED|UNBUILT) ' tools/mutants
