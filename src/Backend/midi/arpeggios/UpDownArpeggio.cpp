#include "Backend/midi/arpeggios/UpDownArpeggio.h"

namespace Backend::ArpeggioManagement::Arpeggios {

using SequenceManagement::Sequence;
using SequenceManagement::SequenceSetting;

void UpDownArpeggio::advance(SequenceSetting& setting) {
    Sequence& sequence = setting.getSequence();
    if (!sequence.hasNodes())
        advancePlain();
    else if (m_descending)
        advanceDown(sequence);
    else
        advanceUp(sequence);
}

void UpDownArpeggio::advancePlain() {
    if (m_descending) {
        if (!isAtFirst()) {
            stepBack();
            return;
        }
        if (!isAtLast())
            stepForward();
        m_descending = false;
        return;
    }
    if (!isAtLast()) {
        stepForward();
        return;
    }
    if (!isAtFirst())
        stepBack();
    m_descending = true;
}

void UpDownArpeggio::advanceDown(Sequence& sequence) {
    if (!isAtFirst()) {
        stepBack();
        return;
    }
    if (!sequence.isAtFirstNode()) {
        sequence.stepBack();
        goToLast();
        return;
    }
    if (isAtLast())
        sequence.advance();
    else
        stepForward();
    m_descending = false;
}

void UpDownArpeggio::advanceUp(Sequence& sequence) {
    if (!isAtLast()) {
        stepForward();
        return;
    }
    if (!sequence.isAtLastNode()) {
        sequence.advance();
        goToFirst();
        return;
    }
    if (isAtFirst())
        sequence.stepBack();
    else
        stepBack();
    m_descending = true;
}

}
