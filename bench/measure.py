#!/usr/bin/python3 -B
"""measure.py FOLDER [--quick]: runs the benchmarks built in that folder, one table in all. Started
by bench/run.
"""

import json
import os
import pathlib
import statistics
import subprocess
import sys

from table import Table, machine, plot, written

HERE = pathlib.Path(__file__).resolve().parent
BUILD = pathlib.Path(sys.argv[1]).resolve()
QUICK = "--quick" in sys.argv
PAIRS = 7 if QUICK else 31
REPETITIONS = 3 if QUICK else 9
ROUNDS = 2 if QUICK else 9
WIDGETS = "Qt Widgets"  # in a column of its own
PEERS = {"Controls": "peer_controls", "GTK 4": "peer_gtk", WIDGETS: "peer_widgets"}

median = statistics.median


def run(name, *arguments):
    """Runs a benchmark; its standard output is the application's own and of no interest."""
    surroundings = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
    done = subprocess.run([BUILD / "bench" / f"{name}_bench", *arguments], env=surroundings,
                          stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
    if done.returncode:
        sys.exit(f"bench/run: {name}: {done.stderr}")


def figures(name):
    """What a program of ours measured: each figure's values in the order taken."""
    path = BUILD / f"{name}.figures"
    run(name, path)
    values = {}
    for line in path.read_text().splitlines():
        figure, value = line.split()
        values.setdefault(figure, []).append(float(value))
    return values


def repeated(name):
    """The medians of Google Benchmark's repetitions, taken in random turns: nanoseconds of the
    processor, unless the benchmark takes its own time."""
    path = BUILD / f"{name}.json"
    run(name, f"--benchmark_out={path}", f"--benchmark_repetitions={REPETITIONS}",
        "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.05",
        "--benchmark_report_aggregates_only=true")
    scale = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}
    medians = {}
    for entry in json.loads(path.read_text())["benchmarks"]:
        if entry.get("aggregate_name") == "median":
            own = entry["run_name"].endswith("/manual_time")
            time = entry["real_time" if own else "cpu_time"] * scale[entry["time_unit"]]
            medians[entry["run_name"].split("/iterations")[0]] = time
    return medians


def taken(script, rounds, programs):
    """What a script that drives programs from outside prints: by program, a list for each figure."""
    output = subprocess.run([HERE / script, str(rounds), BUILD, *programs], check=True,
                            stdout=subprocess.PIPE, text=True).stdout
    values = {}
    for line in output.splitlines():
        name, *numbers = line.split()
        values.setdefault(name, []).append([float(number) for number in numbers])
    return {name: list(zip(*lines)) for name, lines in values.items()}


def built_peers():
    """By name, the same journey in other toolkits, as far as their packages are there."""
    paths = {name: BUILD / "bench" / "peers" / program for name, program in PEERS.items()}
    for name in [name for name, path in paths.items() if not path.exists()]:
        print(f"skip          {name}: its packages were not there when it was built", flush=True)
        del paths[name]
    return paths


def add_peers(table, what, ours, peers, unit, goal):
    """A row beside the best of the peers that are worth the comparison, and the others named."""
    widgets = peers.pop(WIDGETS, None)
    if not peers:
        return
    best, *others = sorted(peers, key=peers.get)
    rest = "".join(f" ({name}: {written(peers[name], unit)})" for name in others)
    table.add(what, (ours, unit), (peers[best], unit), best + rest, goal,
              (widgets, unit) if widgets else None)


def measure_start(table, peers):
    """Answers the megabytes of the application and of the floor."""
    programs = [BUILD / "shell" / "leafund", BUILD / "bench" / "floor_bench", *peers.values()]
    values = taken("start.py", PAIRS, programs)
    figures = (("start to the first content at rest", 0, 1, "ms", 1.05, 0.9),
               ("peak memory at that moment", 1, 1024, "MB", 1.10, 0.8))
    for what, figure, scale, unit, floor_goal, peer_goal in figures:
        each = {name: median(lists[figure]) / scale for name, lists in values.items()}
        ours, floor = each["leafund"], each["floor_bench"]
        table.add(what, (ours, unit), (floor, unit), "the floor", floor_goal)
        add_peers(table, "the same", ours, {name: each[path.name] for name, path in peers.items()},
                  unit, peer_goal)
    return ours, floor


def measure_journey(table, peers):
    programs = [BUILD / "shell" / "leafund", *peers.values()]
    values = taken("journey.py", ROUNDS, programs)
    each = {name: median(lists[0]) for name, lists in values.items()}
    add_peers(table, "processor time from the start to the thanks for a pledge", each["leafund"],
              {name: each[path.name] for name, path in peers.items()}, "ms", 0.7)


def measure_showings(table):
    values = figures("showings")
    times = values["showing_ns"]
    tenth = len(times) // 10
    first, last = median(times[:tenth]), median(times[-tenth:])
    table.add("a row showing, the last 100,000 of a million", (last, "ns"), (first, "ns"),
              "the first 100,000", 1.05)
    kept = values["kept_bytes"][0]
    table.add("what a showing leaves for good", (kept, "bytes"), (400, "bytes"), "a budget", 1)
    return times, kept


def measure_memory(table, memory, kept):
    """What is left for good, by intent, is not in it; the row above counts that."""
    values = figures("memory")
    permanent = values["showings"][0] * kept / 2**20
    grown = (values["scrolled_kb"][0] - values["first_frame_kb"][0]) / 1024 - permanent
    ours, floor = memory
    table.add("peak memory after 10,000 rows with pictures", (ours + grown, "MB"), (floor, "MB"),
              "the floor", 1.25)
    return values["frame_ms"]


def measure_frames(table):
    values = figures("frames")
    limit = median(values["limit_median_ms"]), "ms"
    table.add("a frame of the list, 60 px on", (median(values["ours_median_ms"]), "ms"), limit,
              "the rows painted plainly", 1.3)
    table.add("the same, 99th percentile", (median(values["ours_p99_ms"]), "ms"), limit,
              "their median", 3)


def measure_pictures(table):
    times = repeated("pictures")
    for width, size in ((640, "640×480"), (4000, "4000×3000")):
        table.add(f"a row's picture, from {size}", (times[f"rowPicture/{width}"] / 1e6, "ms"),
                  (times[f"scaledDecoding/{width}"] / 1e6, "ms"), "scaled decoding", 1.15)
    table.add("the same", (times["rowPicture/4000"] / 1e6, "ms"),
              (times["fullDecoding/4000"] / 1e6, "ms"), "full decoding, smooth scaling", 0.35)


def measure_opening(table):
    values = figures("opening")
    table.add("the slowest first opening of a page", (max(values["first_ms"]), "ms"), (3, "ms"),
              "a budget", 1)
    table.add("a tap on a row to its campaign's frame", (median(values["campaign_ms"]), "ms"),
              (median(values["empty_ms"]), "ms"), "an empty scene", 1.5)


def measure_inside(table):
    times = repeated("inside")
    per_row = {n: times[f"reload/{n}"] / n for n in (100, 10_000, 1_000_000)}
    many = per_row[1_000_000], "ns"
    table.add("a reload of a million campaigns, a row", many, (20, "ns"), "a budget", 1)
    # That both grow alike says that it is linear; what it costs with no row at all is in neither.
    table.add("the same", many, (per_row[10_000], "ns"), "of 10,000 campaigns", 1.1)
    moved = times["memmoveOfTheList"] / 1e6, "ms"
    booking = max(time for name, time in times.items() if name.startswith("bookPledge"))
    for what, ours in (("a new campaign among a million", times["insertCampaign"]),
                       ("a pledge booked among a million", booking)):
        table.add(what, (ours / 1e6, "ms"), moved, "one memmove of the list", 1.5)
    return {n: times[f"reload/{n}"] for n in per_row}


def measure_frame_after(table):
    values = figures("reload")
    few, many = (median(values[f"frame_after_{n}_ms"]) for n in (100, 1_000_000))
    table.add("the frame after a reload of a million", (many, "ms"), (few, "ms"),
              "after one of a hundred", 1.1)


def measure_downloads(table):
    values = figures("downloads")
    table.add("200 pictures into a flung list", (median(values["ours_ms"]), "ms"),
              (median(values["curl_ms"]), "ms"), "libcurl alone, 6 connections", 1.3)
    table.add("a frame while pictures come, without one", (median(values["busy_ms"]), "ms"),
              (median(values["idle_ms"]), "ms"), "when all are there", 1.1)


def measure_size(table):
    stripped = BUILD / "leafund.stripped"
    subprocess.run(["strip", "-o", stripped, BUILD / "shell" / "leafund"], check=True)
    table.add("the executable, stripped, with its scenes", (stripped.stat().st_size / 1e6, "MB"),
              (1.5, "MB"), "a budget", 1)


def main():
    table = Table()
    peers = built_peers()
    memory = measure_start(table, peers)
    measure_journey(table, peers)
    showings, kept = measure_showings(table)
    frames = measure_memory(table, memory, kept)
    measure_frames(table)
    measure_pictures(table)
    measure_opening(table)
    reloads = measure_inside(table)
    measure_frame_after(table)
    measure_downloads(table)
    measure_size(table)
    plot(BUILD / "frames.png", "What a frame costs, as showings add up",
         [((i + 1) * 250, time) for i, time in enumerate(frames)], ("showings", "ms"),
         "set yrange [0:*]; ")
    batch = 1_000_000 // len(showings)
    plot(BUILD / "showings.png", "What a row showing costs, as they add up",
         [((i + 1) * batch, time) for i, time in enumerate(showings)], ("showings", "ns each"),
         "set yrange [0:*]; ")
    plot(BUILD / "reloads.png", "What a reload costs",
         [(n, time / 1e6) for n, time in reloads.items()], ("campaigns", "ms"),
         "set logscale xy; ")
    page = f"{table.text()}\nTaken on {machine()}.\n"
    (BUILD / "table.md").write_text(page)
    print(f"\n{page}\nTable and plots: {os.path.relpath(BUILD)}/")


if __name__ == "__main__":
    main()
