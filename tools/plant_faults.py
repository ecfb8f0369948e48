#!/usr/bin/env python3
"""Plants faults one at a time in a copy of the sources, and says which of them the tests catch.

usage: tools/plant_faults.py COUNT [SEED [FOLDER...]]     COUNT in each folder of src: plant_faults.py 25 1 ui display
       tools/plant_faults.py --again LOG                  those of a log that were missed, in the sources of now

A fault is a turned comparison, sign or constant, or a statement or a row of a table left out, at a random place
below src, headers included, of which there are at most two in a folder, since they take minutes to build. Those
that do not compile do not count. The tests of the same folder run first. What was missed is printed with its place, to be looked at: some faults no
person could notice. A test that fails must fail twice to count. The copy is build/planted, the log beside it
planted-SEED.log; a run that was ended goes on where its log ends. Nothing else is touched.
"""
import os
import pathlib
import random
import re
import resource
import shutil
import signal
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
COPY = pathlib.Path(os.environ.get("PLANTED", ROOT / "build" / "planted"))
TESTS_TAKE = 150  # seconds at most, of the clock or of the processor; a planted fault may never end
QUICK = 100  # milliseconds: tests that take less are run first
HEADERS = 2  # faults in headers of a folder, at most
STEPPING = ("Step.", "Zoo/Sample.Plays")  # take long, and run nothing but the step
STEPS = ("model", "sim", "effects", "measure")

TURNS = {
    "comparison": [(r" < ", " <= "), (r" > ", " >= "), (r" <= ", " < "), (r" >= ", " > "), (r" == ", " != "),
                   (r" != ", " == "), (r" && ", " || "), (r" \|\| ", " && ")],
    "sign": [(r" \+ ", " - "), (r" - ", " + "), (r" \* ", " / "), (r"\+\+", "--"), (r" \+= ", " -= ")],
    "constant": [(r"(?<![\w.])0(?![\w.'])", "1"), (r"(?<![\w.])1(?![\w.'])", "2"), (r"\btrue\b", "false"),
                 (r"\bfalse\b", "true"), (r"(?<![\w.'])([2-9])(?![\w.'])", r"(\1 + 1)"),
                 (r"(?<![\w.'])([1-9]\d+|\d+\.\d+F?)(?![\w.'])", r"(2 * \1)")],
}


def places(text, suffix):
    """All (kind, start, end, replacement) of a file, comments, texts and preprocessor lines left alone."""
    statement = r"(\(.*\)| (=|\+=|-=) [^;]*)" if suffix == ".cpp" else r" (=|\+=|-=) [^;]*"  # constructors look like calls
    found = []
    at = 0
    for line in text.splitlines(keepends=True):
        code = line.split("//")[0]
        if not re.match(r"\s*(#|template|static_assert|using|virtual)", code):
            quoted = [m.span() for m in re.finditer(r'"(\\.|[^"\\])*"', code)]
            for kind, turns in TURNS.items():
                for pattern, turned in turns:
                    for m in re.finditer(pattern, code):
                        if not any(a <= m.start() < b for a, b in quoted):
                            found.append((kind, at + m.start(), at + m.end(), m.expand(turned)))
            if re.match(r"\s+[A-Za-z_][\w.:>\-]*" + statement + r";\s*$", code):
                found.append(("statement", at, at + len(code.rstrip("\n")), ""))
            if re.match(r"\s+(\{\S|\w+\(\").*[)}],$", code):
                found.append(("row", at, at + len(code.rstrip("\n")), ""))
        at += len(line)
    return found


def said(path, text, place):
    """A fault in one line of the log: where, what kind, the code, what it becomes."""
    kind, start, _, turned = place
    line = text.count("\n", 0, start)
    column = start - (text.rfind("\n", 0, start) + 1)
    code = text.splitlines()[line].strip()
    return f"{path.relative_to(COPY / 'src')}:{line + 1}:{column}  {kind}: {code}" + (f"   -> {turned.strip()}" if turned else "")


def run(command, limit):
    """The return code, which is not 0 for what takes longer, and what was printed."""
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    with subprocess.Popen(command, cwd=COPY, env=environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
                          errors="replace", start_new_session=True,
                          preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_CPU, (limit, limit))) as started:
        try:
            printed = started.communicate(timeout=limit)[0]
            return started.returncode, printed
        except subprocess.TimeoutExpired:
            os.killpg(started.pid, signal.SIGKILL)  # with the programs that a test has started
            return -1, started.communicate()[0]


def build(limit):
    return run(["cmake", "--build", "build/release", "--target", "zentrik_tests"], limit)[0] == 0


def test(names):
    """The test that failed, "" if none did."""
    code, printed = run(["build/release/zentrik_tests", "--gtest_fail_fast", "--gtest_filter=" + ":".join(names)], TESTS_TAKE)
    if code == 0:
        return ""
    failed = re.findall(r"^\[  FAILED  \] (\w[^\s,]+)", printed, re.M)
    begun = re.findall(r"^\[ RUN      \] (\S+)", printed, re.M)  # the last one has ended the program
    return failed[0] if failed else begun[-1]


def catcher(names):
    """The test that catches what is planted; one that fails once and then passes is not believed."""
    while names:
        failed = test(names)
        if not failed or test([failed]):
            return failed
        names = names[names.index(failed) + 1:]
    return ""


def prepare():
    """A built copy, and the names of its tests in two lots, quick ones first."""
    COPY.mkdir(parents=True, exist_ok=True)
    shutil.rmtree(COPY / "src", ignore_errors=True)  # what an earlier copy had may be gone
    shutil.rmtree(COPY / "tests", ignore_errors=True)
    files = subprocess.run(["git", "archive", "HEAD"], cwd=ROOT, check=True, stdout=subprocess.PIPE).stdout
    subprocess.run(["tar", "xm", "-C", COPY], input=files, check=True)
    run(["cmake", "--preset", "release", "-DZENTRIK_BENCH=OFF", "-DCMAKE_CXX_FLAGS_RELEASE=-O1 -DNDEBUG",
         "-DCMAKE_DISABLE_PRECOMPILE_HEADERS=OFF"], 300)
    if not build(3600):
        sys.exit("The copy does not build.")
    printed = run(["build/release/zentrik_tests"], 600)[1]
    for name in set(re.findall(r"^\[  FAILED  \] (\w\S+)", printed, re.M)):
        print("Fails without a planted fault, left out:", name, flush=True)
    passed = re.findall(r"^\[       OK \] (\S+) \((\d+) ms\)", printed, re.M)
    return [[n for n, ms in passed if int(ms) < QUICK], [n for n, ms in passed if int(ms) >= QUICK]]


def testsOf(folder):
    """The names of the suites that stand in the folder of tests that mirrors a folder."""
    texts = "".join(p.read_text() for p in (COPY / "tests" / folder).rglob("*.cpp"))
    return set(re.findall(r"^TEST(?:_F|_P)?\((\w+)", texts, re.M))


def plant(path, text, place, lots):
    """The name of the test that catches the fault, "" for none; None if it does not compile."""
    _, start, end, turned = place
    path.write_text(text[:start] + turned + text[end:])
    try:
        if not build(900):
            return None
        folder = path.relative_to(COPY / "src").parts[0]
        near = testsOf(folder)
        isNear = lambda name: any(suite in near for suite in re.split(r"[./]", name))
        far = [n for n in lots[1] if folder in STEPS or not n.startswith(STEPPING)]
        nearest = [n for n in lots[0] + far if isNear(n)]
        return catcher(nearest) or catcher([n for n in lots[0] if not isNear(n)]) or catcher([n for n in far if not isNear(n)])
    finally:
        path.write_text(text)


def verdict(path, text, place, lots):
    caught = plant(path, text, place, lots)
    word = "no build" if caught is None else "caught  " if caught else "MISSED  "
    return f"{word}  {said(path, text, place)}" + (f"   [{caught}]" if caught else "")


def tried(folder, seed):
    """The places of a folder in the order in which they are tried."""
    texts = {p: p.read_text() for suffix in ("cpp", "h") for p in sorted((COPY / "src" / folder).rglob("*." + suffix))}
    every = [(p, texts[p], place) for p in texts for place in places(texts[p], p.suffix)]
    random.Random(f"{seed} {folder}").shuffle(every)
    headers = [it for it in every if it[0].suffix == ".h"]
    return [it for it in every if it[0].suffix == ".cpp" or it in headers[:HEADERS]]


def folderOf(line):
    return line[8:].strip().split("/")[0]


def plantAnew(count, seed, folders, lots):
    log = COPY.parent / f"planted-{seed}.log"
    lines = log.read_text().splitlines() if log.exists() else []
    every = {f: tried(f, seed) for f in folders}
    at = {f: sum(folderOf(line) == f for line in lines) for f in folders}
    for wanted in range(1, count + 1):
        for folder in folders:
            while at[folder] < len(every[folder]) and wanted > sum(
                    folderOf(line) == folder and not line.startswith("no build") for line in lines):
                lines.append(verdict(*every[folder][at[folder]], lots))
                at[folder] += 1
                print(lines[-1], flush=True)
                with log.open("a") as kept:
                    kept.write(lines[-1] + "\n")
    return lines


def plantAgain(log, lots):
    lines = []
    for line in pathlib.Path(log).read_text().splitlines():
        if not line.startswith("MISSED"):
            continue
        where, what = line[8:].strip().split("  ", 1)
        name, number, column = where.split(":")
        path = COPY / "src" / name
        text = path.read_text()
        alike = [p for p in places(text, path.suffix) if said(path, text, p).endswith(f":{column}  {what}")]
        if not alike:
            print("gone      " + line[8:].strip(), flush=True)
            continue
        lines.append(verdict(path, text, min(alike, key=lambda p: abs(text.count("\n", 0, p[1]) + 1 - int(number))), lots))
        print(lines[-1], flush=True)
    return lines


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    lots = prepare()
    if sys.argv[1] == "--again":
        lines = plantAgain(sys.argv[2], lots)
    else:
        folders = sys.argv[3:] or sorted(p.name for p in (ROOT / "src").iterdir())
        lines = plantAnew(int(sys.argv[1]), int(sys.argv[2]) if len(sys.argv) > 2 else 1, folders, lots)
    for folder in sorted({folderOf(line) for line in lines}):
        caught, missed = (sum(line.startswith(word) and folderOf(line) == folder for line in lines) for word in ("caught", "MISSED"))
        if caught + missed:
            print(f"{folder:10} {caught} of {caught + missed} caught ({100 * caught // (caught + missed)} %)")


if __name__ == "__main__":
    main()
