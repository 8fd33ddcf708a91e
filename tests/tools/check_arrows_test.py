"""check-arrows finds each kind of violation, and nothing in a tree without one."""
import pathlib
import subprocess
import sys
import tempfile

TOOL = pathlib.Path(__file__).resolve().parents[2] / "tools" / "check-arrows"

GOOD = {
    "Platform/Files.h": "#include <string>\n",
    "Platform/win32/Files.cpp": '#include "Platform/Files.h"\n#include <windows.h>\n#ifdef _WIN64\n#endif\n',
    "Backend/core/Mirel.cpp": '#include "Platform/Files.h"\n#include "Gui/MirelGuiIF.h"\n#include "Backend/midi/engine/MidiEngine.h"\n',
    "Backend/midi/engine/MidiEngine.cpp": '#include "Backend/core/MirelIF.h"\n',
    "Gui/Layers/Panel.cpp": '#include "Backend/core/MirelIF.h"\n#include "Gui/Utils/Panel.h"\n#include <windows.h>\n',
    "Host/common/ports/win32/Midi.cpp": '#include "Host/common/ports/win32/Midi.h"\n#include <windows.h>\n#ifdef _WIN64\n#endif\n',
    "Host/cli/main.cpp": '#include "Gui/MirelGui.h"\n#include "Backend/midi/engine/MidiEngine.h"\n',
}
# The content of a file, and the complaint about it.
BAD = {
    "Platform/Clock.cpp": ('#include "Backend/core/Text.h"\n', "Platform must not know Backend/core/Text.h"),
    "Backend/midi/Layer.cpp": ('#include "Gui/Utils/Panel.h"\n', "Backend must not know Gui/Utils/Panel.h"),
    "Backend/midi/Zone.cpp": ("#include <windows.h>\n", "windows.h belongs in"),
    "Platform/Thread.cpp": ("#  if defined(_WIN32)\n", "shared code asks which system it is on"),
    "Backend/midi/Note.cpp": ('#include "Backend/midi/engine/MidiEngine.h"\n',
                              "Backend/midi must not know Backend/midi/engine/MidiEngine.h"),
    "Backend/midi/engine/PlayingZone.cpp": ('#include "Backend/core/Mirel.h"\n',
                                            "Backend/midi/engine must not know Backend/core/Mirel.h"),
    "Gui/Zones/Panel.cpp": ('#include "Gui/Layers/Panel.h"\n', "Gui/Zones must not know Gui/Layers/Panel.h"),
    "Gui/Utils/skin/Skinner.cpp": ('#include "Gui/Utils/widgets/Button.h"\n',
                                   "Gui/Utils/skin must not know Gui/Utils/widgets/Button.h"),
    "Host/common/desk/Ports.cpp": ("#ifdef __linux__\n", "shared code asks which system it is on"),
    "Host/common/desk/Player.cpp": ('#include "Host/common/ports/posix/Midi.h"\n',
                                    "Host/common/ports/posix/Midi.h is for one system alone"),
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

status, output = check({**GOOD, "Backend/newroom/New.cpp": "#include <string>\n"})
assert (status, output) == (1, "src/Backend/newroom/New.cpp: Backend/newroom is not in the table of rooms\n"), output
