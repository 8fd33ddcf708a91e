"""check-docs finds each kind of error, and nothing in pages without one."""
import pathlib
import subprocess
import sys
import tempfile

TOOL = pathlib.Path(__file__).resolve().parents[2] / "tools" / "check-docs"

SOURCES = {
    "src/Gui/Utils/Panel.h": "class Panel { void resizeWnd(); static constexpr int ROW_HEIGHT = 5; };\n",
    "tests/data/keys.txt": "",
    "tools/build": "",
}
GOOD = """# Panels

`Panel` knows `resizeWnd` and `Panel::resizeWnd`, and so `ROW_HEIGHT`; see `Panel.h`, `Gui/Utils` and `src/Gui/Utils/Panel`.
`tools/build PRESET` builds, `build/desk.png` comes of it, and [keys](tests/data/keys.txt) is a file. `mirel` and `OUT`
are no names of the sources, nor is `</Layer>`.

| A row of a table may be wide | """ + "x" * 120 + """ |

    tools/nothing `NoSuchName`

```
 NoSuchName
```
"""
# A line, and the complaint about it.
BAD = {
    "`FeedEnd` waits.": "page.md:1: no source knows FeedEnd",
    "`Panel::feedEnd` waits.": "page.md:1: no source knows feedEnd",
    "`ROW_WIDTH` is 5.": "page.md:1: no source knows ROW_WIDTH",
    "`FeedEnd.h` holds it.": "page.md:1: there is no file FeedEnd.h",
    "`src/Gui/Views` holds it.": "page.md:1: there is no src/Gui/Views",
    "`tools/deploy NOW` runs it.": "page.md:1: there is no tools/deploy NOW",
    "See [it](nothing.md).": "page.md:1: there is no nothing.md",
    "x " * 61: "page.md:1: 122 columns",
}


def check(page):
    with tempfile.TemporaryDirectory() as root:
        for name, text in {**SOURCES, "page.md": page}.items():
            path = pathlib.Path(root, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        done = subprocess.run([sys.executable, TOOL, root], capture_output=True, text=True)
    return done.returncode, done.stdout


def main():
    failures = 0
    good = GOOD.replace("; see `Panel.h`", ";\nsee `Panel.h`")
    if check(good) != (0, ""):
        print("a good page is complained of:", check(good))
        failures += 1
    for line, expected in BAD.items():
        result = check(line + "\n")
        if result != (1, expected + "\n"):
            print(f"{line!r}: expected {expected!r}, got {result}")
            failures += 1
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
