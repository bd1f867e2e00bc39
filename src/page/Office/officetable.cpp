#include "page/Office/officetable.h"

#include "page/engine/commonoptions.h"

namespace {

constexpr Option kEyeshield[] = {{LABEL("Close"), 0},    {LABEL("30s"), 1},      {LABEL("1 Hour"), 2},
                                 {LABEL("1.5 Hour"), 3}, {LABEL("2 Hour"), 4},   {LABEL("2.5 Hour"), 5},
                                 {LABEL("3 Hour"), 6},   {LABEL("3.5 Hour"), 7}, {LABEL("4 Hour"), 8}};
constexpr Option kPaper[] = {{LABEL("Close"), 0},
                             {LABEL("Paper_A4"), 1},
                             {LABEL("Paper_B5"), 2},
                             {LABEL("Paper_B6"), 3},
                             {LABEL("Custom Size"), 4}};
constexpr Option kAlignment[] = {
    {LABEL("Close"), 0}, {LABEL("Alignment_4"), 1}, {LABEL("Alignment_6"), 2}, {LABEL("Alignment_9"), 3}};

// The off option of this group has a label of its own.
constexpr Option kRuler[] = {{LABEL("Angle close"), 0}, {LABEL("Ruler"), 1}, {LABEL("Angle Ruler"), 2}};
constexpr Option kComposition[] = {{LABEL("Close"), 0},          {LABEL("Triangle"), 1},   {LABEL("Frame"), 2},
                                   {LABEL("Golden Section"), 3}, {LABEL("Trichotomy"), 4}, {LABEL("Round"), 5}};

const Section kPaperPanel[] = {OptionGroup{LABEL("Paper"), Command::Paper, kPaper}, CustomPart{kPaperSizePart}};
const Section kAlignmentPanel[] = {OptionGroup{LABEL("Alignment"), Command::Alignment, kAlignment}};
const Section kRulerPanel[] = {OptionGroup{LABEL("Ruler"), Command::Ruler, kRuler}};
const Section kAlignmentAid[] = {OptionGroup{LABEL("Alignment Aid"), Command::AlignmentAid, kCloseOpen}};
const Section kCompositionPanel[] = {OptionGroup{LABEL("Composition"), Command::Composition, kComposition}};
const Section kEyeshieldPanel[] = {OptionGroup{LABEL("Eyeshield Remind"), Command::RestTimer, kEyeshield}};
const Section kAiDualMode[] = {OptionGroup{LABEL("AI Dual Mode"), Command::AiDualMode, kCloseOpen}};

const PanelSpec kPanels[] = {
    {LABEL("Paper"), "office_paper", "pagePaper", kPaperPanel},
    {LABEL("Alignment"), "alignment", "pageAlignment", kAlignmentPanel},
    {LABEL("Ruler"), "ruler", "pageRuler", kRulerPanel},
    {LABEL("Alignment Aid"), "alignment_aid", "pageAlignmentAid", kAlignmentAid},
    {LABEL("Composition"), "composition", "pageComposition", kCompositionPanel},
    {LABEL("Eyeshield Remind"), "eyeshield_remind", "pageEyeshieldRemind", kEyeshieldPanel},
    {LABEL("AI Dual Mode"), "ai_dual_mode", "pageAIDualMode", kAiDualMode},
};

} // namespace

std::span<const PanelSpec> officePanels()
{
    return kPanels;
}
