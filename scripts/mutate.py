#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Changes the sources at random, one small change at a time, and asks the tests whether
they notice. Works on a copy in build/mutate, so the sources stay as they are. A change
that does not compile is passed over. What was tried is kept: the same command goes on
where it was interrupted, with more changes if --count has grown. The changes that no test
has noticed are listed in a file there.

Each change meets the tests of its own folder first, then, unless --own, all others."""
import argparse
import pathlib
import random
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
WORK = ROOT / "build/mutate"
SOURCE = WORK / "source"
# In the place where the preset puts it, so that a compiler cache knows what is compiled.
BUILD = SOURCE / "build/dev"
# Where the tests of a folder are.
TESTS = {"src": "tests/plugin", "history": "tests/history", "usage": "tests/usage",
         "formats": "tests/formats", "recorder": "tests/recorder", "modem": "tests/modem",
         "refhost": "tests/refhost", "apps": "tests/apps"}
SECONDS_FOR_A_TEST = 120

# What stands for itself in each text: strings, characters and comments.
OPAQUE = re.compile(r'R"\((?:.|\n)*?\)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\''
                    r"|//[^\n]*|/\*(?:.|\n)*?\*/|^[ \t]*#[^\n]*", re.MULTILINE)

# Name, what is changed, and what it becomes. Binary operators have a space on each side,
# which tells them from template brackets, pointers and signs.
OPERATORS = [
    ("comparison", r" == ", " != "), ("comparison", r" != ", " == "),
    ("comparison", r" < ", " <= "), ("comparison", r" <= ", " < "),
    ("comparison", r" > ", " >= "), ("comparison", r" >= ", " > "),
    ("arithmetic", r" \+ ", " - "), ("arithmetic", r" - ", " + "),
    ("arithmetic", r" \* ", " / "), ("arithmetic", r" / ", " * "),
    ("arithmetic", r" % ", " / "), ("arithmetic", r" \+= ", " -= "),
    ("arithmetic", r" -= ", " += "), ("arithmetic", r"\+\+", "--"),
    ("boolean", r" && ", " || "), ("boolean", r" \|\| ", " && "),
    ("boolean", r"(?<=[ (])!(?=[A-Za-z(])", ""),
    ("boolean", r"\btrue\b", "false"), ("boolean", r"\bfalse\b", "true"),
    ("constant", r"(?<![\w.'])\d+(?![\w.'])", lambda found: str(int(found) + 1)),
    ("constant", r"(?<![\w.'])[1-9]\d*(?![\w.'])", lambda found: str(int(found) - 1)),
    # A whole call or assignment on a line of its own.
    ("statement", r"(?m)(?<=[;{})]\n)[ \t]+(?!return\b|using\b|break\b|continue\b|throw\b|case\b)"
                  r"[\w:.>\-\[\]*]+(?: [+\-|]?= |\(|\+\+|--)[^;{}\n]*;$", ";"),
    ("return value", r"(?<=\breturn )(?!(?:0|false|nullptr|std::nullopt);)[^;{}\n]+(?=;)", "{}"),
]


class Mutant:
    """One change of one file."""

    def __init__(self, path, text, name, span, replacement):
        self.path = path
        self.original = text
        self.span = span
        self.replacement = replacement
        line = text.count("\n", 0, span[0]) + 1
        place = span[0] - text.rfind("\n", 0, span[0])
        before = " ".join(text[slice(*span)].split())
        self.title = f"{path}:{line}:{place}\t{name}\t{before} -> {replacement.strip() or 'nothing'}"

    @property
    def text(self):
        start, end = self.span
        return self.original[:start] + self.replacement + self.original[end:]

    @property
    def folder(self):
        return self.path.split("/")[0]


def fail(sentence):
    sys.exit(f"mutate.py: {sentence}")


def blanked(text):
    """The text with spaces in the place of what stands for itself."""
    return OPAQUE.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), text)


def mutants_of(path):
    text = (ROOT / path).read_text(encoding="utf-8")
    code = blanked(text)
    for name, pattern, replacement in OPERATORS:
        for found in re.finditer(pattern, code):
            new = replacement(found.group()) if callable(replacement) else replacement
            yield Mutant(path, text, name, found.span(), new)


def tracked(*patterns):
    output = subprocess.check_output(["git", "ls-files", "-z", *patterns], cwd=ROOT, text=True)
    return [name for name in output.split("\0") if name and (ROOT / name).is_file()]


def write_if_changed(target, contents):
    """So that only what has changed is compiled again."""
    if target.is_file() and target.read_bytes() == contents:
        return
    target.parent.mkdir(parents=True, exist_ok=True)
    target.write_bytes(contents)


def copy_sources():
    for name in tracked():
        target = SOURCE / name
        write_if_changed(target, (ROOT / name).read_bytes())
        target.chmod((ROOT / name).stat().st_mode & 0o777)


def run(*command):
    return subprocess.run(command, cwd=SOURCE, capture_output=True, text=True, check=False)


def builds(folders):
    targets = [f"{folder}/all" if folder else "all" for folder in folders]
    return run("cmake", "--build", str(BUILD), "--target", *targets)


def tests(folder):
    """In the folder, or everywhere."""
    return run("ctest", "--test-dir", str(BUILD / folder), "--stop-on-failure", "--output-on-failure",
               "--timeout", str(SECONDS_FOR_A_TEST))


def prepare(stages):
    """Builds the copy as it is; its tests have to pass."""
    copy_sources()
    configured = run("cmake", "--preset", "dev")
    if configured.returncode != 0:
        fail(f"the copy cannot be configured:\n{configured.stderr[-2000:]}")
    built = builds(stages)
    if built.returncode != 0:
        fail(f"the copy does not build; mend the sources first:\n{built.stdout[-2000:]}")
    for stage in stages:
        tested = tests(stage)
        if tested.returncode != 0:
            fail("tests fail without any change, so they would notice everything; "
                 f"mend them first:\n{tested.stdout[-2000:]}")


def outcome(mutant, stages):
    target = SOURCE / mutant.path
    target.write_text(mutant.text, encoding="utf-8")
    try:
        for stage in stages:
            if builds([stage]).returncode != 0:
                return "does not compile"
            if tests(stage).returncode != 0:
                return "noticed"
        return "survived"
    finally:
        target.write_bytes((ROOT / mutant.path).read_bytes())


class Results:
    """What has been tried with this seed, in a file that each outcome is added to."""

    def __init__(self, path):
        self.path = path
        self.outcomes = {}
        if path.is_file():
            lines = path.read_text(encoding="utf-8").splitlines()
            self.outcomes = dict(reversed(line.split("\t", 1)) for line in lines)

    def add(self, title, result):
        self.outcomes[title] = result
        with self.path.open("a", encoding="utf-8") as file:
            file.write(f"{result}\t{title}\n")

    def with_outcome(self, result):
        return [title for title, each in self.outcomes.items() if each == result]


def arguments():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--seed", type=int, default=1, help="which changes (default: 1)")
    parser.add_argument("--count", type=int, default=50, help="how many that compile (default: 50)")
    parser.add_argument("--own", action="store_true", help="only the tests of the change's folder")
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
    stages = {folder: [TESTS[folder]] + ([] if given.own else [""]) for folder in given.folders}
    WORK.mkdir(parents=True, exist_ok=True)
    run_name = f"{given.seed}{'-own' if given.own else ''}"
    results = Results(WORK / f"results-{run_name}.txt")
    mutants = [mutant for path in tracked(*(f"{folder}/**.cpp" for folder in given.folders))
               for mutant in mutants_of(path)]
    random.Random(given.seed).shuffle(mutants)
    print(f"{len(mutants)} changes are possible; building the copy ...", flush=True)
    prepare(sorted({stage for each in stages.values() for stage in each}, reverse=True))
    tried = 0
    for mutant in mutants:
        if tried == given.count:
            break
        if mutant.title not in results.outcomes:
            results.add(mutant.title, outcome(mutant, stages[mutant.folder]))
        result = results.outcomes[mutant.title]
        tried += result != "does not compile"
        print(f"{tried}\t{result}\t{mutant.title}", flush=True)
    survivors = results.with_outcome("survived")
    noticed = len(results.with_outcome("noticed"))
    table = WORK / f"survivors-{run_name}.txt"
    table.write_text("".join(f"{title}\n" for title in survivors), encoding="utf-8")
    print(f"{noticed} of {noticed + len(survivors)} changes of seed {given.seed} were noticed; "
          f"the others are in {table.relative_to(ROOT)}")


if __name__ == "__main__":
    try:
        main()
    except KeyboardInterrupt:
        fail("interrupted; the same command goes on from here")
