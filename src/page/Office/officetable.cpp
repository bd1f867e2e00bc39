#include "page/Office/officetable.h"

#include "page/engine/commandrows.h"
#include "page/engine/commonhelp.h"
#include "page/engine/commonoptions.h"

namespace {

// What they are for.
constexpr char kPaperHelp[] =
    LABEL("Draws the outline of a sheet on the screen. Close = none, Custom Size = as large as you set it.");
constexpr char kAlignmentHelp[] = LABEL("Draws lines that divide the screen. Close = none; Alignment_4, Alignment_6 "
                                        "and Alignment_9 = into 4, 6 or 9 parts.");
constexpr char kRulerHelp[] =
    LABEL("Shows a ruler on the screen. Angle close = off, Ruler = for lengths, Angle Ruler = for angles.");
constexpr char kAlignmentAidHelp[] = LABEL("Shows guide lines that help to line things up. Close = off, Open = on.");
constexpr char kCompositionHelp[] =
    LABEL("Draws guide lines for composing a picture. Close = none, Trichotomy = into thirds, Round = a circle.");
constexpr char kEyeshieldRemindHelp[] =
    LABEL("Reminds you to rest your eyes each time the chosen span has passed. Close = off.");

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

const Section kPaperPanel[] = {groupOf(Command::Paper, kPaper), CustomPart{kPaperSizePart}};
const Section kAlignmentPanel[] = {groupOf(Command::Alignment, kAlignment)};
const Section kRulerPanel[] = {groupOf(Command::Ruler, kRuler)};
const Section kAlignmentAid[] = {groupOf(Command::AlignmentAid, kCloseOpen)};
const Section kCompositionPanel[] = {groupOf(Command::Composition, kComposition)};
const Section kEyeshieldPanel[] = {groupOf(Command::RestTimer, kEyeshield)};
const Section kAiDualMode[] = {groupOf(Command::AiDualMode, kCloseOpen)};

const PanelSpec kPanels[] = {
    panelOf(Command::Paper, "office_paper", "pagePaper", kPaperPanel, kPaperHelp),
    panelOf(Command::Alignment, "alignment", "pageAlignment", kAlignmentPanel, kAlignmentHelp),
    panelOf(Command::Ruler, "ruler", "pageRuler", kRulerPanel, kRulerHelp),
    panelOf(Command::AlignmentAid, "alignment_aid", "pageAlignmentAid", kAlignmentAid, kAlignmentAidHelp),
    panelOf(Command::Composition, "composition", "pageComposition", kCompositionPanel, kCompositionHelp),
    panelOf(Command::RestTimer, "eyeshield_remind", "pageEyeshieldRemind", kEyeshieldPanel, kEyeshieldRemindHelp),
    panelOf(Command::AiDualMode, "ai_dual_mode", "pageAIDualMode", kAiDualMode, kAiDualModeHelp),
};

} // namespace

std::span<const PanelSpec> officePanels()
{
    return kPanels;
}
