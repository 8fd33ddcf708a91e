"""Runs all desk scripts by a program that ends with status 3 if a slice did what it must not.

usage: guarded_scripts_test.py PROGRAM
"""
import concurrent.futures
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
RUNNER = ROOT / "tools" / "run-script-test"
SCRIPTS = ROOT / "tests" / "scripts"


def run(script):
    return script, subprocess.run([sys.executable, RUNNER, script, *sys.argv[1:]], capture_output=True, text=True)


def main():
    scripts = sorted(SCRIPTS.rglob("*.desk"))
    if not scripts:
        sys.exit(f"no scripts below {SCRIPTS}")
    failed = 0
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        for script, done in pool.map(run, scripts):
            if done.returncode != 0:
                failed += 1
                print(f"{script.relative_to(SCRIPTS)}:\n{done.stdout}{done.stderr}")
    print(f"{len(scripts) - failed} of {len(scripts)} scripts")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
