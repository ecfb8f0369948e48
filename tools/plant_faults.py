#!/usr/bin/env python3
"""Plants faults one at a time in a copy of the sources, and says which of them the tests catch.

usage: tools/plant_faults.py COUNT [SEED [FOLDER...]]     for example: tools/plant_faults.py 50 1 ui display

A fault is a turned comparison, sign or constant, or a statement left out, at a random place below src. Those
that do not compile do not count. What was missed is printed with its place, to be looked at: some faults no
person could notice. The copy is build/planted; nothing else is touched.
"""
import os
import pathlib
import random
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
COPY = ROOT / "build" / "planted"
TESTS_TAKE = 600  # seconds at most; a planted fault may never end

TURNS = {
    "comparison": [(r" < ", " <= "), (r" > ", " >= "), (r" <= ", " < "), (r" >= ", " > "), (r" == ", " != "),
                   (r" != ", " == "), (r" && ", " || "), (r" \|\| ", " && ")],
    "sign": [(r" \+ ", " - "), (r" - ", " + "), (r" \* ", " / "), (r"\+\+", "--"), (r" \+= ", " -= ")],
    "constant": [(r"\b0\b", "1"), (r"\b1\b", "2"), (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
                 (r"\b([2-9]\d*)\b", r"(\1 + 1)")],
}


def places(text):
    """All (kind, start, end, replacement) of a file, comments, texts and preprocessor lines left alone."""
    found = []
    at = 0
    for line in text.splitlines(keepends=True):
        code = line.split("//")[0]
        if not re.match(r"\s*(#|template|static_assert|using)", code):
            quoted = [m.span() for m in re.finditer(r'"(\\.|[^"\\])*"', code)]
            for kind, turns in TURNS.items():
                for pattern, turned in turns:
                    for m in re.finditer(pattern, code):
                        if not any(a <= m.start() < b for a, b in quoted):
                            found.append((kind, at + m.start(), at + m.end(), m.expand(turned)))
            if re.match(r"\s+[A-Za-z_][\w.:>\-]*(\(.*\)| (=|\+=|-=) [^;]*);\s*$", code):
                found.append(("statement", at, at + len(code.rstrip("\n")), ""))
        at += len(line)
    return found


def run(command, limit):
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    try:
        return subprocess.run(command, cwd=COPY, env=environment, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, timeout=limit).returncode
    except subprocess.TimeoutExpired:
        return -1


def prepare():
    COPY.mkdir(parents=True, exist_ok=True)
    files = subprocess.run(["git", "archive", "HEAD"], cwd=ROOT, check=True, stdout=subprocess.PIPE).stdout
    subprocess.run(["tar", "x", "-C", COPY], input=files, check=True)
    run(["cmake", "--preset", "release"], 300)
    if run(["cmake", "--build", "--preset", "release", "--target", "zentrik_tests"], 3600) != 0:
        sys.exit("The copy does not build.")
    if run(["build/release/zentrik_tests"], TESTS_TAKE) != 0:
        sys.exit("The tests fail without a planted fault.")


def plant(path, text, place):
    kind, start, end, turned = place
    path.write_text(text[:start] + turned + text[end:])
    try:
        if run(["cmake", "--build", "--preset", "release", "--target", "zentrik_tests"], 1800) != 0:
            return None
        return run(["build/release/zentrik_tests", "--gtest_fail_fast"], TESTS_TAKE) != 0
    finally:
        path.write_text(text)


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    count, seed = int(sys.argv[1]), int(sys.argv[2]) if len(sys.argv) > 2 else 1
    folders = sys.argv[3:] or sorted(p.name for p in (ROOT / "src").iterdir())
    prepare()
    chance = random.Random(seed)
    sources = [p for f in folders for p in sorted((COPY / "src" / f).glob("*.cpp"))]
    texts = {p: p.read_text() for p in sources}
    every = [(p, place) for p in sources for place in places(texts[p])]
    tally = {f: [0, 0] for f in folders}
    while count > 0 and every:
        path, place = every.pop(chance.randrange(len(every)))
        caught = plant(path, texts[path], place)
        if caught is None:
            continue
        count -= 1
        tally[path.parent.name][0 if caught else 1] += 1
        line = texts[path].count("\n", 0, place[1]) + 1
        code = texts[path].splitlines()[line - 1].strip()
        print(f"{'caught' if caught else 'MISSED'}  {path.relative_to(COPY)}:{line}  {place[0]}: {code}"
              + (f"   -> {place[3].strip()}" if place[3] else ""), flush=True)
    for folder, (caught, missed) in tally.items():
        if caught + missed:
            print(f"{folder:10} {caught} of {caught + missed} caught ({100 * caught // (caught + missed)} %)")


if __name__ == "__main__":
    main()
