#include "benchmarks/FullBank.h"

#include "Backend/core/files/BankFile.h"
#include "Backend/core/files/DefaultXml.h"

#include <array>

namespace Benchmarks {

namespace {

constexpr int LAYERS = 16;
constexpr std::array<const char*, 4> ARPEGGIOS = {"ChordArpeggio", "UpArpeggio", "DownArpeggio", "UpDownArpeggio"};

std::string makeLayers() {
    std::string xml = "<Layers merge=\"false\">\n";
    for (std::size_t i = 0; i < LAYERS; ++i)
        xml += "<Layer minNote=\"C-1\" maxNote=\"G9\" minVelocity=\"0\" maxVelocity=\"127\" channel=\"" +
               std::to_string(i) + "\" transpose=\"+12\">\n<Arpeggio>\n<" + ARPEGGIOS[i % ARPEGGIOS.size()] +
               " beat=\"120\" length=\"60\"/>\n</Arpeggio>\n" +
               "<SequenceSetting preset=\"\" useNote=\"true\" useVelocity=\"true\" useLength=\"true\">\n" +
               "<Sequence>0,7,12</Sequence>\n</SequenceSetting>\n</Layer>\n";
    return xml + "</Layers>\n";
}

}

std::string makeFullBank(int programs) {
    std::string text;
    for (int i = 1; i <= programs; ++i)
        text += "<Program name=\"Program " + std::to_string(i) + "\" tempo=\"120\" tempoSource=\"-1\">\n" +
                Backend::DEFAULT_COMPUTER_INPUT_XML + "\n" + Backend::DEFAULT_CONTROLS_XML + "\n" + makeLayers() +
                "</Program>\n";
    return Backend::BankFile::wrapProgram(Backend::BankFile::BANK_TAG, text);
}

}
