#!/usr/bin/env python3
"""Plants single-point mutants in the rules and runs the tests that matter: a test that misses none of them is one that
says what the rules say.

    tools/mutate.py [--seed N] [--in TEXT] [--windows] COUNT

COUNT mutants are drawn by the seed from all that there are, or from those of the files whose paths hold TEXT. Each is
planted in a copy of the committed tree in build/mutants, built, and tried on the tests of its own folder first and on
all tests of the rules then; --windows tries what lives on with the window tests too. One that does not compile is
drawn anew. Prints a line for each mutant, those that live on once more at the end, and ends with status 1 if there
are any: whether one of them changes nothing that anybody could see is for a reader to say.
"""
import argparse
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PLACE = ROOT / "build" / "mutants"
TREE = PLACE / "tree"
PRESET = "test-clang"
PATIENCE = 600  # seconds for one test program

# What stands for what, each where it stands alone between blanks.
OPERATORS = [("==", "!="), ("!=", "=="), ("<", "<="), ("<=", "<"), (">", ">="), (">=", ">"), ("&&", "||"), ("||", "&&"),
             ("+", "-"), ("-", "+"), ("*", "/"), ("/", "*"), ("+=", "-="), ("-=", "+=")]
WORDS = [("true", "false"), ("false", "true"), ("continue", "break"), ("std::min", "std::max"), ("std::max", "std::min"),
         ("begin", "end"), ("front", "back"), ("back", "front"), ("empty", "size"), ("row", "column"), ("column", "row"),
         ("low", "high"), ("first", "last"), ("last", "first"), ("rows", "columns"), ("columns", "rows")]
STATEMENT = re.compile(r"^\s+(?!return|break|continue|case|default|throw|using|namespace|constexpr|const |auto |static )"
                       r"[A-Za-z_][\w:.\->]*(?:\(.*\)|(?: [-+*/]?=|\+\+).*);$")

# Test programs of each folder of rules, the nearest first.
NEAREST = {"src/core": ["unit_core"], "src/hostlink": ["unit_hostlink"], "src/grid": ["unit_grid"],
           "src/plot": ["unit_plot"], "src/draft": ["unit_draft"], "src/review": ["unit_review"],
           "src/wizard": ["unit_wizard"], "src/pages/candela": ["unit_candela"],
           "src/pages/distribution": ["unit_distribution"], "src/pages/luminaire": ["unit_luminaire"],
           "src/pages/keywords": ["unit_keywords"]}
OTHERS = ["store_tests", "host_lib", "hosted_tool"]
WINDOWS = ["widget_tests", "help_tests"]


class Mutant:
    def __init__(self, path, line, start, end, text, whole):
        self.path, self.line, self.start, self.end, self.text, self.whole = path, line, start, end, text, whole

    def planted(self):
        lines = (ROOT / self.path).read_text().split("\n")
        old = lines[self.line]
        lines[self.line] = old[:self.start] + self.text + old[self.end:]
        return "\n".join(lines)

    def __str__(self):
        return f"{self.path}:{self.line + 1}: {self.whole.strip()}  ->  " \
               f"{(self.whole[:self.start] + self.text + self.whole[self.end:]).strip()}"


def rule_files():
    for listing in sorted((ROOT / "src").rglob("CMakeLists.txt")):
        for block in re.findall(r"penwright_rules\(\w+([^)]*)\)", listing.read_text()):
            for name in block.split():
                yield (listing.parent / name).relative_to(ROOT)


def blanked(line):
    """The line with the texts in it and the remark behind it made blank, so that nothing is planted there."""
    line = re.sub(r'"(?:[^"\\]|\\.)*"|\'(?:[^\'\\]|\\.)*\'', lambda m: "\0" * len(m.group()), line)
    return re.sub(r"//.*", lambda m: " " * len(m.group()), line)


def mutants_of(path):
    for number, whole in enumerate((ROOT / path).read_text().split("\n")):
        line = blanked(whole)
        if line.lstrip().startswith(("#", "namespace", "using", "template")) or not line.strip():
            continue
        for old, new in OPERATORS:
            for found in re.finditer(rf"(?<= ){re.escape(old)}(?= )", line):
                yield Mutant(path, number, found.start(), found.end(), new, whole)
        for old, new in WORDS:
            for found in re.finditer(rf"(?<![\w:]){re.escape(old)}(?!\w)", line):
                yield Mutant(path, number, found.start(), found.end(), new, whole)
        for found in re.finditer(r"(?<![\w.\"])\d+(?![\w.])", line):
            yield Mutant(path, number, found.start(), found.end(), str(int(found.group()) + 1), whole)
        for found in re.finditer(r"(?<=[( ])!(?=[\w(*])", line):
            yield Mutant(path, number, found.start(), found.end(), "", whole)
        for found in re.finditer(r"\+\+|--", line):
            yield Mutant(path, number, found.start(), found.end(), "--" if found.group() == "++" else "++", whole)
        if STATEMENT.match(line):
            indent = len(line) - len(line.lstrip())
            yield Mutant(path, number, indent, len(line), ";", whole)


def run(command, **options):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace",
                          **options)


def make_tree():
    """A copy of what is committed; files keep their times where they have not changed."""
    PLACE.mkdir(parents=True, exist_ok=True)
    if not TREE.exists():
        subprocess.run(["git", "clone", "--quiet", "--local", str(ROOT), str(TREE)], check=True)
    head = run(["git", "rev-parse", "HEAD"], cwd=ROOT).stdout.strip()
    for command in (["fetch", "--quiet", str(ROOT), head], ["reset", "--quiet", "--hard", head]):
        subprocess.run(["git", *command], cwd=TREE, check=True)
    launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
    subprocess.run(["cmake", "--preset", PRESET, *launcher], cwd=TREE, check=True, stdout=subprocess.DEVNULL)


def build(targets):
    return run(["nice", "cmake", "--build", "--preset", PRESET, "--target", *targets, "--", "-j2"], cwd=TREE)


def killer(programs):
    """The first of the test programs that fails, with its first test that does; None when all pass."""
    environment = {**os.environ, "GTEST_FAIL_FAST": "1", "QT_QPA_PLATFORM": "offscreen"}
    for program in programs:
        try:
            ran = run([f"build/{PRESET}/bin/{program}"], cwd=TREE, env=environment, timeout=PATIENCE)
        except subprocess.TimeoutExpired:
            return f"{program}: takes for ever"
        if ran.returncode != 0:
            failed = re.search(r"\[  FAILED  \] (\S+)", ran.stdout)
            return f"{program}: {failed.group(1) if failed else 'status ' + str(ran.returncode)}"
    return None


def stages(mutant, with_windows):
    nearest = next((NEAREST[folder] for folder in NEAREST if str(mutant.path).startswith(folder + "/")), [])
    rest = sorted({program for programs in NEAREST.values() for program in programs} - set(nearest)) + OTHERS
    return [nearest, rest] + ([WINDOWS] if with_windows else [])


def try_out(mutant, with_windows):
    """How it died, "" when it lives on, None when it does not compile."""
    target = TREE / mutant.path
    target.write_text(mutant.planted())
    try:
        for programs in stages(mutant, with_windows):
            built = build(programs)
            if built.returncode != 0:
                return None
            death = killer(programs)
            if death:
                return death
        return ""
    finally:
        shutil.copyfile(ROOT / mutant.path, target)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("count", type=int, metavar="COUNT")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--in", dest="within", default="", metavar="TEXT")
    parser.add_argument("--windows", action="store_true")
    arguments = parser.parse_args()

    changed = run(["git", "status", "--porcelain", "src"], cwd=ROOT).stdout
    if changed:
        sys.exit(f"Commit first what has changed below src:\n{changed}")
    every = [mutant for path in rule_files() if arguments.within in str(path) for mutant in mutants_of(path)]
    random.Random(arguments.seed).shuffle(every)
    print(f"{len(every)} mutants to draw from, seed {arguments.seed}", flush=True)

    make_tree()
    everything = [program for stage in stages(Mutant(pathlib.Path("src"), 0, 0, 0, "", ""), arguments.windows)
                  for program in stage]
    built = build(everything)
    if built.returncode != 0:
        sys.exit(f"The tree itself does not build:\n{built.stdout[-2000:]}")
    failed = killer(everything)
    if failed:
        sys.exit(f"The tree itself fails: {failed}")

    tried, alive = 0, []
    for mutant in every:
        if tried == arguments.count:
            break
        death = try_out(mutant, arguments.windows)
        if death is None:
            continue
        tried += 1
        print(f"{tried:4} {'died in ' + death if death else 'LIVES ON'}\n     {mutant}", flush=True)
        if not death:
            alive.append(mutant)
    print(f"{tried - len(alive)} of {tried} died" + (f", {100 * (tried - len(alive)) / tried:.1f} %" if tried else ""))
    for mutant in alive:
        print(f"lives on: {mutant}")
    sys.exit(1 if alive else 0)


if __name__ == "__main__":
    main()
