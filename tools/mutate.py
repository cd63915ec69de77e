#!/usr/bin/env python3
"""Plants single-point mutants in the rules and runs the tests that matter: a test that misses none of them is one that
says what the rules say.

    tools/mutate.py [--seed N] [--in TEXT] [--windows] [--jobs N] COUNT

COUNT mutants are drawn by the seed from all that there are, or from those of the files whose paths hold TEXT. In a copy
of the committed tree, in build/mutants, everything is built once, without sanitizers and with each folder of rules as
a shared library. For a mutant one file is compiled and one library linked, which the test programs load in the other's
place: those of its own folder first, all that test rules then, and with --windows the window tests; slow tests last.
A test that fails on a mutant must fail twice, so that a busy machine kills nothing. A mutant that does not compile is
drawn anew. Prints a line for each mutant, those that live on once more at the end, and ends with status 1 if there are
any: whether one of them changes nothing that anybody could see is for a reader to say.
"""
import argparse
import concurrent.futures
import json
import os
import pathlib
import random
import re
import resource
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
PLACE = ROOT / "build" / "mutants"
TREE = PLACE / "tree"
BUILT = PLACE / "built"
SETTINGS = ["-GNinja", "-DCMAKE_CXX_COMPILER=clang++", "-DCMAKE_BUILD_TYPE=Debug", "-DPENWRIGHT_RULES=SHARED",
            "-DCMAKE_CXX_FLAGS_DEBUG=-D_GLIBCXX_ASSERTIONS", "-DPENWRIGHT_BENCH=OFF",
            "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON", "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON",
            "-DCMAKE_EXE_LINKER_FLAGS=-Wl,--as-needed", "-DCMAKE_SHARED_LINKER_FLAGS=-Wl,--as-needed"]
QUICK = 50  # milliseconds of a test; the others come last
PATIENCE = 10, 30  # as often as long as without a mutant, and seconds more
MEMORY = 4 << 30  # bytes of addresses for one test program

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
OTHERS = ["store_tests"]
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


def make_tree(programs):
    """What is committed, built; files keep their times where they have not changed."""
    PLACE.mkdir(parents=True, exist_ok=True)
    if not TREE.exists():
        subprocess.run(["git", "clone", "--quiet", "--local", str(ROOT), str(TREE)], check=True)
    head = run(["git", "rev-parse", "HEAD"], cwd=ROOT).stdout.strip()
    for command in (["fetch", "--quiet", str(ROOT), head], ["reset", "--quiet", "--hard", head]):
        subprocess.run(["git", *command], cwd=TREE, check=True)
    launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
    for command in (["cmake", "-S", TREE, "-B", BUILT, *SETTINGS, *launcher],
                    ["cmake", "--build", BUILT, "--target", *programs]):
        built = run(command)
        if built.returncode != 0:
            sys.exit(f"The tree itself does not build:\n{built.stdout[-2000:]}")


def ended(program, patience, library="", tests="*"):
    """What the program says with the library in the folder `library` in its own's place, and its status; a negative one
    when it crashed or took for ever."""
    environment = {**os.environ, "GTEST_FAIL_FAST": "1", "GTEST_FILTER": tests, "QT_QPA_PLATFORM": "offscreen",
                   "LD_LIBRARY_PATH": str(library)}
    with tempfile.TemporaryFile("w+", errors="replace") as said:
        process = subprocess.Popen([BUILT / "bin" / program], stdout=said, stderr=subprocess.STDOUT, cwd=BUILT,
                                   env=environment, start_new_session=True,
                                   preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY)))
        try:
            status = process.wait(patience)
        except subprocess.TimeoutExpired:
            status = -signal.SIGKILL
        finally:
            try:
                os.killpg(process.pid, signal.SIGKILL)
            except ProcessLookupError:
                pass
            process.wait()
        said.seek(0)
        return said.read(), status


class Program:
    """A test program that passes; its quick tests and the others are run apart."""

    def __init__(self, name):
        start = time.monotonic()
        said, status = ended(name, None)
        if status != 0:
            sys.exit(f"The tree itself fails in {name}:\n{said[-2000:]}")
        self.name = name
        self.patience = (time.monotonic() - start) * PATIENCE[0] + PATIENCE[1]
        times = re.findall(r"\[       OK \] (\S+) \((\d+) ms\)", said)
        self.slow = [test for test, milliseconds in times if int(milliseconds) > QUICK]
        self.libraries = run(["ldd", BUILT / "bin" / name]).stdout

    def sees(self, library):
        return library in self.libraries

    def killer(self, library, is_quick):
        """How it fails twice, "" when it does not."""
        left_out = []
        while is_quick or self.slow:
            tests = "-" + ":".join(self.slow + left_out) if is_quick else ":".join(self.slow) + "-" + ":".join(left_out)
            said, status = ended(self.name, self.patience, library, tests)
            if status == 0:
                break
            if status == 127:
                sys.exit(f"{self.name} does not run with the library of a mutant:\n{said}")
            failed = re.search(r"\[  FAILED  \] ([^\s,]+)", said)
            test = failed.group(1) if failed else (re.findall(r"\[ RUN      \] (\S+)", said) or ["*"])[-1]
            if ended(self.name, self.patience, library, test)[1] != 0:
                return f"{self.name}: {test}" + ("" if failed else f", status {status}")
            left_out.append(test)
        return ""


def compiled(mutant, commands, folder):
    """The name of the library of the mutant's folder, which is put into `folder` with the mutant in it; None when the
    mutant does not compile."""
    command = commands[str(TREE / mutant.path)]
    words = shlex.split(command["command"])
    if words[0].endswith("ccache"):
        words = words[1:]
    source, own = folder / mutant.path.name, folder / "mutant.o"
    source.write_text(mutant.planted())
    output = words[words.index("-o") + 1]
    words[words.index("-o") + 1] = str(own)
    words[words.index(command["file"])] = str(source)
    if run(words, cwd=command["directory"]).returncode != 0:
        return None
    objects = (BUILT / output).parent
    name = "lib" + objects.name.removesuffix(".dir") + ".so"
    others = [path for path in sorted(objects.glob("*.o")) if path != BUILT / output]
    libraries = [path for path in sorted((BUILT / "src").rglob("lib*_rules.so")) if path.name != name]
    places = ["-Wl,-rpath," + str(path.parent) for path in libraries]
    linked = run(["clang++", "-shared", f"-Wl,-soname,{name}", "-o", folder / name, own, *others, "-Wl,--as-needed",
                  *libraries, *places])
    own.unlink()
    return name if linked.returncode == 0 else None


def nearest_first(programs, path):
    nearest = next((NEAREST[folder] for folder in NEAREST if str(path).startswith(folder + "/")), [])
    return sorted(programs, key=lambda program: program.name not in nearest)


def try_out(mutant, commands, programs):
    """How it died, "" when it lives on, None when it does not compile."""
    with tempfile.TemporaryDirectory(dir=PLACE) as folder:
        library = compiled(mutant, commands, pathlib.Path(folder))
        if not library:
            return None
        seeing = [program for program in nearest_first(programs, mutant.path) if program.sees(library)]
        return next(filter(None, (program.killer(folder, is_quick) for is_quick in (True, False)
                                  for program in seeing)), "")


def try_all(every, count, jobs, commands, programs):
    """Tries mutants until `count` of them have compiled; how many have, and those that live on."""
    tried, alive, drawn = 0, [], 0
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        while tried < count and drawn < len(every):
            some = every[drawn:drawn + count - tried]
            drawn += len(some)
            deaths = {pool.submit(try_out, mutant, commands, programs): mutant for mutant in some}
            for done in concurrent.futures.as_completed(deaths):
                mutant, death = deaths[done], done.result()
                if death is None:
                    continue
                tried += 1
                print(f"{tried:4} {'died in ' + death if death else 'LIVES ON'}\n     {mutant}", flush=True)
                if not death:
                    alive.append(mutant)
    return tried, alive


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("count", type=int, metavar="COUNT")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--in", dest="within", default="", metavar="TEXT")
    parser.add_argument("--windows", action="store_true")
    parser.add_argument("--jobs", type=int, default=2)
    arguments = parser.parse_args()

    changed = run(["git", "status", "--porcelain", "src"], cwd=ROOT).stdout
    if changed:
        sys.exit(f"Commit first what has changed below src:\n{changed}")
    every = [mutant for path in rule_files() if arguments.within in str(path) for mutant in mutants_of(path)]
    random.Random(arguments.seed).shuffle(every)
    print(f"{len(every)} mutants to draw from, seed {arguments.seed}", flush=True)

    names = sum(NEAREST.values(), []) + OTHERS + (WINDOWS if arguments.windows else [])
    make_tree(names)
    commands = {command["file"]: command for command in json.loads((BUILT / "compile_commands.json").read_text())}
    with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
        programs = list(pool.map(Program, names))
    tried, alive = try_all(every, arguments.count, arguments.jobs, commands, programs)
    print(f"{tried - len(alive)} of {tried} died" + (f", {100 * (tried - len(alive)) / tried:.1f} %" if tried else ""))
    for mutant in alive:
        print(f"lives on: {mutant}")
    sys.exit(1 if alive else 0)


if __name__ == "__main__":
    main()
