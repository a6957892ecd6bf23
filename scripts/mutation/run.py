"""Breaks the code one place at a time and shows that the tests notice.

Each mutant (rules.py) is built and tested in a copy of the tree below build/mutate. A mutant that
nothing notices survives; the exit status is 1 when one survives that accepted.txt does not name,
with the reason why no test could or should notice it.
"""

import argparse
import fcntl
import os
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import time
from collections import Counter, defaultdict
from pathlib import Path

from rules import CMAKE_SOURCE, Mutant, mutants

ROOT = Path(__file__).resolve().parents[2]
WORK = ROOT / "build" / "mutate"
ACCEPTED = Path(__file__).with_name("accepted.txt")

# In the order in which they are built and run: those that build fast and notice most go first.
PROGRAMS = (
    "zorcs_tests",
    "zorcs_ownership_tests",
    "zorcs_check_tests",
    "zorcs_registration_tests",
)
# A mutant that takes longer loops. All tests together take a second.
BUILD_LIMIT_S = 600
TEST_LIMIT_S = 30
TEST_MEMORY = 4 << 30


def limit_tests() -> None:
    resource.setrlimit(resource.RLIMIT_AS, (TEST_MEMORY, TEST_MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def run(command: list[str], limit_s: float, is_test: bool = False) -> tuple[int | None, str]:
    """The exit status, None past the time limit, and the output."""
    with subprocess.Popen(
        command,
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        text=True,
        errors="replace",
        start_new_session=True,
        preexec_fn=limit_tests if is_test else None,
        # Freed memory holds rubbish, so that a use after it is seen.
        env={**os.environ, "MALLOC_PERTURB_": "165"},
    ) as process:
        try:
            output, _ = process.communicate(timeout=limit_s)
            return process.returncode, output
        except BaseException as error:
            os.killpg(process.pid, signal.SIGKILL)
            if isinstance(error, subprocess.TimeoutExpired):
                return None, ""
            raise


def last_match(pattern: str, text: str, otherwise: str) -> str:
    found = re.findall(pattern, text, re.MULTILINE)
    return found[-1] if found else otherwise


class Tree:
    """A copy of the tree with its build, which returns to its first state after each mutant."""

    def __init__(self, jobs: int) -> None:
        self.root = WORK / "tree"
        self.build_dir = self.root / "build" / "mutate"
        self.snapshot = WORK / "snapshot"
        self.jobs = str(jobs)
        self.built: dict[Path, int] = {}

    def prepare(self) -> None:
        """Brings the copy up to date and builds it; the tests must pass."""
        command = ["git", "-C", str(ROOT), "ls-files", "-z", "-co", "--exclude-standard"]
        listed = subprocess.run(command, check=True, capture_output=True, text=True).stdout
        names = {Path(name) for name in listed.split("\0") if name and (ROOT / name).is_file()}
        for path in [path for path in self.root.rglob("*") if path.is_file()]:
            name = path.relative_to(self.root)
            if name not in names and name.parts[0] != "build":
                path.unlink()
        for name in names:
            source, copy = ROOT / name, self.root / name
            # A file that is as it was keeps its time, so that the build does not begin anew.
            if not copy.exists() or copy.read_bytes() != source.read_bytes():
                copy.parent.mkdir(parents=True, exist_ok=True)
                shutil.copyfile(source, copy)
                shutil.copymode(source, copy)

        status, output = run(["cmake", "-S", str(self.root), "--preset", "mutate"], BUILD_LIMIT_S)
        if status == 0:
            outcome = self.outcome_of_tests()
            if outcome is None:
                self.remember()
                return
            output = f"stopped by {outcome}\n"
        sys.exit(f"mutate: the code as it is does not pass:\n{output}")

    def files(self) -> dict[Path, int]:
        return {
            path.relative_to(self.build_dir): path.stat().st_mtime_ns
            for path in self.build_dir.rglob("*")
            if path.is_file()
        }

    def remember(self) -> None:
        self.built = self.files()
        shutil.rmtree(self.snapshot, ignore_errors=True)
        shutil.copytree(self.build_dir, self.snapshot)

    def restore(self) -> None:
        for name, changed in self.files().items():
            if name not in self.built:
                (self.build_dir / name).unlink()
            elif changed != self.built[name]:
                shutil.copy2(self.snapshot / name, self.build_dir / name)
        for name in self.built:
            if not (self.build_dir / name).exists():
                shutil.copy2(self.snapshot / name, self.build_dir / name)

    def outcome_of(self, mutant: Mutant) -> str | None:
        """What notices the mutant: "build", or the name of a test; None when nothing does."""
        path = self.root / mutant.file
        before = path.stat()
        path.write_text(mutant.mutated())
        try:
            # The step that adapts the generated sources has a test that needs no build.
            if mutant.file == CMAKE_SOURCE and (noticed := self.run_ctest("AdaptGenerated")):
                return noticed
            return self.outcome_of_tests()
        finally:
            # The source goes last: if the build is not as it was, the source is newer.
            self.restore()
            path.write_text(mutant.text)
            os.utime(path, ns=(before.st_atime_ns, before.st_mtime_ns))

    def outcome_of_tests(self) -> str | None:
        for program in PROGRAMS:
            if not self.builds(program):
                return "build"
            command = [str(self.build_dir / "tests" / program), "--gtest_fail_fast"]
            status, output = run(command, TEST_LIMIT_S, is_test=True)
            if status is None:
                return f"{program} (endless)"
            if status != 0:
                running = last_match(r"^\[ RUN      \] (\S+)", output, program)
                return last_match(r"^\[  FAILED  \] ([^\s,]+\.[^\s,]+)", output, running)
        if not self.builds("all"):
            return "build"
        return self.run_ctest(".")

    def builds(self, target: str) -> bool:
        command = ["cmake", "--build", str(self.build_dir), "-j", self.jobs, "--target", target]
        return run(command, BUILD_LIMIT_S)[0] == 0

    def run_ctest(self, pattern: str) -> str | None:
        command = ["ctest", "--test-dir", str(self.build_dir), "--stop-on-failure"]
        command += ["-j", self.jobs, "--timeout", str(TEST_LIMIT_S), "-R", pattern]
        status, output = run(command, BUILD_LIMIT_S, is_test=True)
        if status == 0:
            return None
        return last_match(r"^\s*\d+ - (\S+) \(", output, "ctest")


def accepted_keys() -> set[str]:
    """The entries of the list of accepted mutants, without the reasons."""
    text = ACCEPTED.read_text() if ACCEPTED.exists() else ""
    entries = re.sub(r"^#.*\n", "", text, flags=re.MULTILINE).strip()
    return {entry.strip() for entry in re.split(r"\n{2,}", entries) if entry.strip()}


def sample(all_mutants: list[Mutant], count: int, seed: int) -> list[Mutant]:
    """Every n-th one in the order of files and rules: each has its share."""
    ordered = sorted(all_mutants, key=lambda m: (m.file, m.rule, m.start))
    step = max(1.0, len(ordered) / count)
    first = random.Random(seed).random() * step
    picks = (int(first + i * step) for i in range(count))
    return [ordered[pick] for pick in picks if pick < len(ordered)]


def show_summary(outcomes: list[tuple[Mutant, str | None]]) -> None:
    columns = ("build", "tests", "survived")
    tallies: dict[str, Counter[str]] = defaultdict(Counter)
    for mutant, outcome in outcomes:
        column = "survived" if outcome is None else "build" if outcome == "build" else "tests"
        for row in (f"  {mutant.rule}", mutant.file, "~all"):
            tallies[row][column] += 1
    print(f"\n{'':34} tried " + " ".join(f"{column:>8}" for column in columns) + "    share")
    for row, tally in sorted(tallies.items()):
        counts = " ".join(f"{tally[column]:8}" for column in columns)
        share = 100 * tally["survived"] / tally.total()
        print(f"{row.strip(' ~'):34} {tally.total():5} {counts} {share:6.1f} %")
    by_test = Counter(outcome.split("/")[0] for _, outcome in outcomes if outcome)
    print("\nnoticed by")
    for name, count in by_test.most_common():
        print(f"{count:6} {name}")


def arguments() -> argparse.Namespace:
    parser = argparse.ArgumentParser(prog="scripts/mutate", description=__doc__.split("\n")[0])
    parser.add_argument("--list", action="store_true", help="print the mutants and stop")
    parser.add_argument("--only", metavar="REGEX", default="", help="in file, rule or changed text")
    parser.add_argument("--sample", type=int, metavar="N", help="try N, of all files and rules")
    parser.add_argument("--seed", type=int, default=1, help="of the sample (%(default)s)")
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), help="for build and tests")
    return parser.parse_args()


def main() -> int:
    args = arguments()
    there_are = mutants(ROOT)
    keys = {m: f"{m.file}: {m.rule}\n{m.diff()}" for m in there_are}
    accepted = accepted_keys()
    for key in sorted(accepted - set(keys.values())):
        print(f"accepted.txt: no such mutant any more:\n{key}\n")

    chosen = [m for m in there_are if keys[m] not in accepted]
    chosen = [m for m in chosen if re.search(args.only, keys[m])]
    if args.sample:
        chosen = sample(chosen, args.sample, args.seed)
    if args.list:
        for mutant in chosen:
            print(f"{mutant.file}:{mutant.line()}: {mutant.rule}\n{mutant.diff()}\n")
        print(f"{len(chosen)} mutants")
        return 0

    WORK.mkdir(parents=True, exist_ok=True)
    lock = (WORK / "lock").open("w")
    try:
        fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
    except BlockingIOError:
        sys.exit("mutate: another run is at work in build/mutate")
    print("Building and testing the code as it is", flush=True)
    tree = Tree(args.jobs)
    tree.prepare()
    outcomes: list[tuple[Mutant, str | None]] = []
    for count, mutant in enumerate(chosen, 1):
        start = time.monotonic()
        outcome = tree.outcome_of(mutant)
        outcomes.append((mutant, outcome))
        took = time.monotonic() - start
        place = f"{took:5.1f} s  {mutant.file}:{mutant.line()} {mutant.rule}"
        print(f"[{count}/{len(chosen)}] {place}: {outcome or 'SURVIVED'}", flush=True)

    show_summary(outcomes)
    survivors = [keys[mutant] for mutant, outcome in outcomes if outcome is None]
    print("".join(f"\n{survivor}\n" for survivor in survivors), end="")
    return 1 if survivors else 0


if __name__ == "__main__":
    # Either way of stopping ends what runs below.
    for stop in (signal.SIGINT, signal.SIGTERM):
        signal.signal(stop, signal.default_int_handler)
    try:
        sys.exit(main())
    except KeyboardInterrupt:
        sys.exit("mutate: interrupted")
