#include "Host/cli/render/RenderCommand.h"

#include "Backend/core/xml/XmlDocument.h"
#include "Backend/midi/sequences/SequencePresetManager.h"
#include "Host/cli/Command.h"
#include "Host/cli/InputFile.h"
#include "Host/cli/render/RenderOptions.h"
#include "Host/cli/render/Renderer.h"
#include "Host/common/midifile/MidiFileClock.h"
#include "Host/common/midifile/MidiFileReader.h"
#include "Platform/Files.h"

#include <cstdio>

namespace Host::Cli {

using namespace Backend;

namespace {

constexpr CommandUsage USAGE{R"(usage: mirel render IN.mid OUT.mid [--layers FILE] [--zones FILE] [--zone N|channel]
                    [--through CHANNELS] [--tempo BPM] [--slice MS] [--data DIR]
)"};

// One line that names the file at fault and what is wrong with it.
class RenderError : public CommandError {
public:
    RenderError(const std::string& file, const std::string& text) : CommandError(file + ": " + text) {}
};

std::string plural(std::size_t count, const char* one, const char* many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string readFile(const std::string& path) {
    std::string content;
    std::string error;
    if (!readInputFile(path, content, error))
        throw RenderError(path, error);
    return content;
}

MidiFile readInput(const std::string& path) {
    MidiFileResult result = readMidiFile(readFile(path));
    if (result.error)
        throw RenderError(path, *result.error);
    return std::move(result.file);
}

// The document of a file whose root must have this name.
XmlDocument readDocument(const std::string& path, const char* tag) {
    XmlDocument document(readFile(path), false);
    if (!document.hasRoot())
        throw RenderError(path, "is not well-formed XML");
    if (document.getRootElement().getName() != tag)
        throw RenderError(path, std::string("is not an element ") + tag);
    return document;
}

Layers::LayerList readLayers(const RenderOptions& options) {
    using SequenceManagement::SequencePresetManager;
    const SequencePresetManager presets(options.dataFolder.empty()
                                            ? std::string()
                                            : Platform::Files::join(options.dataFolder, SequencePresetManager::FOLDER));
    const XmlDocument document = options.layersFile.empty() ? XmlDocument(Layers::LayerList::DEFAULT_XML, false)
                                                            : readDocument(options.layersFile, Layers::LayerList::TAG);
    Layers::LayerList layers;
    layers.readXml(document.getRootElement(), presets);
    return layers;
}

Zones::ZoneMap readZones(const RenderOptions& options) {
    Zones::ZoneMap zones;
    if (!options.zonesFile.empty())
        zones.readXml(readDocument(options.zonesFile, Zones::ZoneMap::TAG).getRootElement());
    return zones;
}

void printInput(const RenderOptions& options, const MidiFile& file) {
    const MidiFileClock clock(file, options.tempo ? options.tempo : 120);
    std::printf("%s: format %d, %s, %.1f seconds\n", options.input.c_str(), file.format,
                plural(file.tracks.size(), "track", "tracks").c_str(), clock.seconds(endTick(file)));
}

void printCount(const char* what, std::size_t count, const char* one, const char* many) {
    if (count > 0)
        std::printf("  %s %s\n", what, plural(count, one, many).c_str());
}

void printCounts(const RenderOptions& options, const MidiFile& file, const RenderCounts& counts) {
    const MidiFileCounts& inFile = file.counts;
    std::printf("  read %s\n", plural(counts.read, "event", "events").c_str());
    std::printf("  played %s\n", plural(counts.played, "event", "events").c_str());
    const std::size_t systemEvents =
        inFile.sysexes + inFile.continuations + inFile.escapes + inFile.skippedSystemMessages;
    std::printf("  dropped %s\n", plural(counts.notTaken + systemEvents, "event", "events").c_str());
    printCount("  because no layer takes it:", counts.notTaken, "event", "events");
    printCount("  because the desk doesn't carry it:", systemEvents, "system message", "system messages");
    printCount("skipped", inFile.unknownChunks, "unknown chunk", "unknown chunks");
    printCount("skipped", inFile.malformedMetas, "malformed tempo or time signature",
               "malformed tempi or time signatures");
    printCount("skipped", inFile.bytesAfterTrackEnds + inFile.bytesAfterLastTrack, "byte after an end",
               "bytes after an end");
    printCount("ended", counts.endedForFile, "note that the file leaves sounding",
               "notes that the file leaves sounding");
    if (counts.arpeggioCutOff)
        std::printf("  ended an arpeggio that would never have stopped\n");
    std::printf("  wrote %s\n", options.output.c_str());
}

ExitStatus render(const RenderOptions& options) {
    const MidiFile file = readInput(options.input);
    const Layers::LayerList layers = readLayers(options);
    const Zones::ZoneMap zones = readZones(options);
    printInput(options, file);
    Renderer renderer(file, layers, zones, options);
    std::string error;
    if (!renderer.play(error))
        throw RenderError(options.input, error);
    const std::string content = renderer.content();
    if (content.empty() || !Platform::Files::replace(options.output, content))
        throw RenderError(options.output, "can't be written");
    printCounts(options, file, renderer.getCounts());
    return DONE;
}

}

int runRender(const std::vector<std::string>& arguments) {
    return runWithOptions(USAGE, arguments, parseRenderOptions, render);
}

}
