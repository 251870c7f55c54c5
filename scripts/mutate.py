#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Changes the sources at random, one small change at a time, and asks the tests whether
they notice. Works on a copy in build/mutate, so the sources stay as they are.

All changes are built at once, side by side with what they change, and the environment
says which one to take. A first run of the tests without any shows which tests reach which
change; a change meets those only, the quickest first. One that does not compile is passed
over. What was tried is kept: the same command resumes where it was interrupted. The
changes that no test has noticed are listed in a file there."""
import argparse
import concurrent.futures
import json
import os
import pathlib
import random
import re
import shutil
import signal
import subprocess
import sys
import threading
import time

sys.dont_write_bytecode = True
import mutants  # noqa: E402

ROOT = pathlib.Path(__file__).resolve().parent.parent
WORK = ROOT / "build/mutate"
SOURCE = WORK / "source"
# In the place where the preset puts it, so that a compiler cache knows what is compiled.
BUILD = SOURCE / "build/dev"
HEADER = ROOT / "scripts/mutation.h"
# Where the tests of a folder are, those of the folders that use it last.
TESTS = {
    "src": ["plugin"],
    "history": ["history", "refhost", "recorder", "apps/connrecord"],
    "usage": ["usage", "apps/connrecord"],
    "formats": ["formats", "apps/connrecord"],
    "recorder": ["recorder", "recorder/bus", "apps/connrecord"],
    "modem": ["modem", "recorder"],
    "apps/connrecord": ["apps/connrecord"],
}
# What is changed need not be fast, but compile fast.
UNOPTIMISED = """cmake_language(DEFER CALL set_property TARGET history usage formats modem recorder
    recorder_bus NetInfoRecordUIPluginObjects connrecord_objects
    APPEND PROPERTY COMPILE_OPTIONS -O0 -g0 -U_FORTIFY_SOURCE)
"""
# A change may let a test wait for ever.
SLOWNESS, LEAST_SECONDS = 4, 20


def fail(sentence):
    sys.exit(f"mutate.py: {sentence}")


def tracked(*patterns):
    output = subprocess.check_output(["git", "ls-files", "-z", *patterns], cwd=ROOT, text=True)
    return [name for name in output.split("\0") if name and (ROOT / name).is_file()]


def write_if_changed(target, contents):
    """So that only what has changed is compiled again."""
    if target.is_file() and target.read_bytes() == contents:
        return
    target.parent.mkdir(parents=True, exist_ok=True)
    target.write_bytes(contents)


class Changes:
    """The changes of a seed, by their numbers, and the files that hold them."""

    def __init__(self, folders, seed, count):
        # Read once, whoever edits them meanwhile.
        self.contents = {name: (ROOT / name).read_bytes() for name in tracked()}
        self.texts = {path: self.contents[path].decode()
                      for path in tracked(*(f"{folder}/*.cpp" for folder in folders))}
        every = [each for path, text in self.texts.items()
                 for each in mutants.mutants_of(path, text)]
        self.possible = len(every)
        random.Random(seed).shuffle(every)
        self.of_file = {path: {} for path in self.texts}
        number = 0
        for mutant in every:
            others = self.of_file[mutant.path].values()
            if number == count:
                break
            if not any(mutant.overlaps(other) for other in others):
                number += 1
                self.of_file[mutant.path][number] = mutant

    def numbered(self):
        return {number: mutant for each in self.of_file.values() for number, mutant in each.items()}

    def write(self):
        for name, contents in self.contents.items():
            if self.of_file.get(name):
                contents = mutants.with_alternatives(self.texts[name], self.of_file[name],
                                                     HEADER).encode()
            write_if_changed(SOURCE / name, contents)
            (SOURCE / name).chmod((ROOT / name).stat().st_mode & 0o777)

    def drop(self, path, lines):
        """What does not compile; everything in the file if that is not known."""
        found = {number for number, mutant in self.of_file[path].items()
                 if any(mutant.first_line <= line - 1 <= mutant.last_line for line in lines)}
        for number in found or list(self.of_file[path]):
            del self.of_file[path][number]


def build(changes, targets):
    """Builds the copy with all changes that compile."""
    changes.write()
    unoptimised = WORK / "unoptimised.cmake"
    unoptimised.write_text(UNOPTIMISED, encoding="utf-8")
    configured = subprocess.run(["cmake", "--preset", "dev", "-DNETINFORECORD_WIRE_STATISTICS=ON",
                                 "-DCMAKE_UNITY_BUILD=OFF", # a fault is that file's alone
                                 f"-DCMAKE_PROJECT_NetInfoRecord_INCLUDE={unoptimised}"],
                                cwd=SOURCE, capture_output=True, text=True, check=False)
    if configured.returncode != 0:
        fail(f"the copy cannot be configured:\n{configured.stderr[-2000:]}")
    while True:
        built = subprocess.run(["cmake", "--build", str(BUILD), "--target", *targets, "--",
                                "-k", "0"], cwd=SOURCE, capture_output=True, text=True, check=False)
        if built.returncode == 0:
            return
        wrong = {}
        for path, line in re.findall(r"^(\S+?):(\d+):\d+: +(?:error|required from here)",
                                     built.stdout, re.MULTILINE):
            path = os.path.relpath(os.path.join(BUILD, path), SOURCE)
            if changes.of_file.get(path):
                wrong.setdefault(path, set()).add(int(line))
        if not wrong:
            fail(f"the copy does not build; mend the sources first:\n{built.stdout[-3000:]}")
        for path, lines in wrong.items():
            changes.drop(path, lines)
        print(f"{len(changes.numbered())} changes compile so far ...", flush=True)
        changes.write()


class Test:
    """One test as ctest knows it."""

    def __init__(self, folder, description):
        properties = {each["name"]: each["value"] for each in description["properties"]}
        self.folder = folder
        self.name = description["name"]
        self.command = description["command"]
        self.environment = dict(each.split("=", 1) for each in properties.get("ENVIRONMENT", []))
        self.working_directory = properties.get("WORKING_DIRECTORY")
        self.seconds = 0.0
        self.reached = set()

    def passes(self, home, limit, **environment):
        """With a home of its own, for another change may be tried in the same test."""
        all_values = {**os.environ, **self.environment, **environment, "HOME": str(home),
                      "XDG_DATA_HOME": f"{home}/data", "XDG_CONFIG_HOME": f"{home}/config"}
        shutil.rmtree(home, ignore_errors=True)
        home.mkdir(parents=True)
        with subprocess.Popen(self.command, cwd=self.working_directory, env=all_values,
                              stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, start_new_session=True) as process:
            try:
                return process.wait(limit) == 0
            except subprocess.TimeoutExpired:
                return False
            finally:
                try:
                    os.killpg(process.pid, signal.SIGKILL)
                except ProcessLookupError:
                    pass


def tests_of(folder):
    output = subprocess.check_output(["ctest", "--test-dir", str(BUILD / "tests" / folder),
                                      "--show-only=json-v1"], text=True)
    return [Test(folder, each) for each in json.loads(output)["tests"] if "command" in each]


def is_sound(test):
    """Runs the test without a change and notes what it reaches."""
    trace = WORK / "traces" / test.name
    trace.parent.mkdir(exist_ok=True)
    trace.write_text("")
    trace.chmod(0o666)
    begin = time.monotonic()
    passed = test.passes(WORK / "homes" / test.name, 600, MUTATION_TRACE=str(trace))
    test.seconds = time.monotonic() - begin
    test.reached = {int(line) for line in trace.read_text().split()}
    return passed


def outcome(number, mutant, tests):
    folders = next(each for folder, each in TESTS.items() if mutant.path.startswith(f"{folder}/"))
    reaching = [test for test in tests if number in test.reached and test.folder in folders]
    home = WORK / "homes" / threading.current_thread().name
    for test in sorted(reaching, key=lambda each: (folders.index(each.folder) > 0, each.seconds)):
        limit = max(LEAST_SECONDS, SLOWNESS * test.seconds)
        if not test.passes(home, limit, MUTATION=str(number)):
            return f"noticed by {test.name}"
    return "survived" if reaching else "not reached"


class Results:
    """What has been tried with this seed, in a file that each outcome is added to."""

    def __init__(self, path):
        self.path = path
        self.lock = threading.Lock()
        self.outcomes = {}
        if path.is_file():
            lines = path.read_text(encoding="utf-8").splitlines()
            self.outcomes = dict(reversed(line.split("\t", 1)) for line in lines)

    def add(self, title, result):
        with self.lock:
            self.outcomes[title] = result
            with self.path.open("a", encoding="utf-8") as file:
                file.write(f"{result}\t{title}\n")
            print(f"{len(self.outcomes)}\t{result}\t{title}", flush=True)


def arguments():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--seed", type=int, default=1, help="which changes (default: 1)")
    parser.add_argument("--count", type=int, default=100,
                        help="how many, those that do not compile among them (default: 100)")
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), help="how many at a time")
    parser.add_argument("folders", nargs="*", metavar="FOLDER",
                        help=f"of {', '.join(TESTS)} (default: all)")
    given = parser.parse_args()
    unknown = [folder for folder in given.folders if folder not in TESTS]
    if unknown:
        parser.error(f'there is no folder "{unknown[0]}" to change; there are {", ".join(TESTS)}')
    if given.count < 1:
        parser.error(f"--count is {given.count}, but at least one change has to be tried")
    given.folders = given.folders or list(TESTS)
    for program in ("git", "cmake", "ctest"):
        if not shutil.which(program):
            fail(f"{program} is not there; ./test installs what a build takes")
    return given


def main():
    given = arguments()
    WORK.mkdir(parents=True, exist_ok=True)
    changes = Changes(given.folders, given.seed, given.count)
    print(f"{changes.possible} changes are possible; building ...", flush=True)
    folders = sorted({folder for each in given.folders for folder in TESTS[each]})
    build(changes, [f"tests/{folder}/all" for folder in folders])
    results = Results(WORK / f"results-{given.seed}-{given.count}.txt")
    tests = [test for folder in folders for test in tests_of(folder)]
    with concurrent.futures.ThreadPoolExecutor(given.jobs) as pool:
        print(f"{len(tests)} tests without a change ...", flush=True)
        for test, passed in zip(list(tests), pool.map(is_sound, tests)):
            if not passed:
                print(f"{test.name} fails without any change and is left out", flush=True)
                tests.remove(test)
        numbered = changes.numbered()

        def attempt(number):
            if numbered[number].title not in results.outcomes:
                results.add(numbered[number].title, outcome(number, numbered[number], tests))
        list(pool.map(attempt, sorted(numbered)))
    survivors = {title: result for title, result in results.outcomes.items()
                 if not result.startswith("noticed")}
    table = WORK / f"survivors-{given.seed}-{given.count}.txt"
    table.write_text("".join(f"{result}\t{title}\n" for title, result in sorted(
        survivors.items())), encoding="utf-8")
    total = len(results.outcomes)
    print(f"{total - len(survivors)} of {total} changes of seed {given.seed} were noticed; "
          f"the others are in {table.relative_to(ROOT)}")


if __name__ == "__main__":
    try:
        main()
    except KeyboardInterrupt:
        fail("interrupted; the same command resumes here")
