"""The arrows check finds each kind of break, and nothing in a tree without one."""
import pathlib
import subprocess
import sys
import tempfile

TOOL = pathlib.Path(__file__).resolve().parents[2] / "tools" / "check-arrows"

GOOD = {
    "Platform/Files.h": "#include <string>\n",
    "Platform/win32/Files.cpp": '#include "Platform/Files.h"\n#include <windows.h>\n#ifdef _WIN64\n#endif\n',
    "Backend/core/Mirel.cpp": '#include "Platform/Files.h"\n#include "Gui/MirelGuiIF.h"\n',
    "Gui/Layers/Panel.cpp": '#include "Backend/core/MirelIF.h"\n#include "Gui/Utils/Panel.h"\n#include <windows.h>\n',
    "Host/common/win32/Midi.cpp": '#include "Host/common/win32/Midi.h"\n#include <windows.h>\n#ifdef _WIN64\n#endif\n',
    "Host/cli/main.cpp": '#include "Gui/MirelGui.h"\n#include "Backend/midi/MidiEngine.h"\n',
}
# What a file holds, and what is said of it.
BAD = {
    "Platform/Clock.cpp": ('#include "Backend/core/Text.h"\n', "Platform must not know Backend/core/Text.h"),
    "Backend/midi/Layer.cpp": ('#include "Gui/Utils/Panel.h"\n', "Backend must not know Gui/Utils/Panel.h"),
    "Backend/midi/Zone.cpp": ("#include <windows.h>\n", "windows.h belongs in"),
    "Platform/Thread.cpp": ("#  if defined(_WIN32)\n", "shared code asks which system it is on"),
    "Gui/Zones/Panel.cpp": ('#include "Gui/Layers/Panel.h"\n', "one screen must not know another's Gui/Layers/Panel.h"),
    "Host/common/Ports.cpp": ("#ifdef __linux__\n", "shared code asks which system it is on"),
    "Host/common/Player.cpp": ('#include "Host/common/posix/Midi.h"\n', "Host/common/posix/Midi.h is for one system alone"),
    "Gui/MirelGui.cpp": ('#include "Host/common/Host.h"\n', "Gui must not know Host/common/Host.h"),
}


def check(files):
    with tempfile.TemporaryDirectory() as root:
        for name, text in files.items():
            path = pathlib.Path(root, "src", name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        done = subprocess.run([sys.executable, TOOL, root], capture_output=True, text=True)
        return done.returncode, done.stdout


status, output = check(GOOD)
assert (status, output) == (0, ""), output
for name, (text, complaint) in BAD.items():
    status, output = check({**GOOD, name: text})
    assert status == 1, name
    assert output.startswith(f"src/{name}:1: {complaint}"), output
    assert output.count("\n") == 1, output
