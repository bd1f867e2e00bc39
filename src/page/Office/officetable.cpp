#include "page/Office/officetable.h"

#include "page/Office/officepictures.h"
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

// When to switch them on.
constexpr char kAlignmentAidWhen[] = LABEL("For placing windows, pictures or a drawing evenly around the middle.");

constexpr char kRestWords[] =
    LABEL("The monitor reminds you each time that this has passed. Look far away for a minute then.");
constexpr Option kEyeshield[] = {{LABEL("Close"), 0, LABEL("The monitor does not remind you.")},
                                 {LABEL("30s"), 1, LABEL("To see how the reminder looks.")},
                                 {LABEL("1 Hour"), 2, kRestWords},
                                 {LABEL("1.5 Hour"), 3, kRestWords},
                                 {LABEL("2 Hour"), 4, kRestWords},
                                 {LABEL("2.5 Hour"), 5, kRestWords},
                                 {LABEL("3 Hour"), 6, kRestWords},
                                 {LABEL("3.5 Hour"), 7, kRestWords},
                                 {LABEL("4 Hour"), 8, kRestWords}};
constexpr Option kPaper[] = {
    {LABEL("Close"), 0, kNothingDrawnWords},
    {LABEL("Paper_A4"), 1, LABEL("A sheet of 210 × 297 mm, upright, in the middle of the screen.")},
    {LABEL("Paper_B5"), 2, LABEL("A sheet of 176 × 250 mm, for books and brochures.")},
    {LABEL("Paper_B6"), 3, LABEL("A sheet of 125 × 176 mm, as of a paperback.")},
    {LABEL("Custom Size"), 4, LABEL("A sheet as large as you set it above.")}};
constexpr Option kAlignment[] = {{LABEL("Close"), 0, kNothingDrawnWords},
                                 {LABEL("Alignment_4"), 1, LABEL("Two columns and two rows.")},
                                 {LABEL("Alignment_6"), 2, LABEL("Three columns and two rows.")},
                                 {LABEL("Alignment_9"), 3, LABEL("Three columns and three rows.")}};

// The off option of this group has a label of its own.
constexpr Option kRuler[] = {{LABEL("Angle close"), 0, kNothingDrawnWords},
                             {LABEL("Ruler"), 1, LABEL("Marks along two edges, to measure and compare lengths.")},
                             {LABEL("Angle Ruler"), 2, LABEL("A protractor around the middle, to measure angles.")}};
constexpr Option kComposition[] = {
    {LABEL("Close"), 0, kNothingDrawnWords},
    {LABEL("Triangle"), 1, LABEL("A diagonal and the lines that meet it: for pictures with a slant.")},
    {LABEL("Frame"), 2, LABEL("Keeps what matters away from the edges.")},
    {LABEL("Golden Section"), 3, LABEL("Lines at 38 and 62 per cent: balanced, and less rigid than thirds.")},
    {LABEL("Trichotomy"), 4, LABEL("Lines at thirds: put what matters where they cross.")},
    {LABEL("Round"), 5, LABEL("A circle, for what is in the middle.")}};

const Section kPaperPanel[] = {groupOf(Command::Paper, kPaper), CustomPart{kPaperSizePart}};
const Section kAlignmentPanel[] = {groupOf(Command::Alignment, kAlignment)};
const Section kRulerPanel[] = {groupOf(Command::Ruler, kRuler)};
const Section kAlignmentAid[] = {switchOf(Command::AlignmentAid, kCloseOpen, kAlignmentAidWhen)};
const Section kCompositionPanel[] = {groupOf(Command::Composition, kComposition)};
const Section kEyeshieldPanel[] = {groupOf(Command::RestTimer, kEyeshield)};
const Section kAiDualMode[] = {switchOf(Command::AiDualMode, kCloseOpen, kAiDualModeWhen)};

const PanelSpec kPanels[] = {
    panelOf(Command::Paper, "office_paper", "pagePaper", kPaperPanel, kPaperHelp, &officepictures::kPaper),
    panelOf(Command::Alignment, "alignment", "pageAlignment", kAlignmentPanel, kAlignmentHelp,
            &officepictures::kAlignment),
    panelOf(Command::Ruler, "ruler", "pageRuler", kRulerPanel, kRulerHelp, &officepictures::kRuler),
    panelOf(Command::AlignmentAid, "alignment_aid", "pageAlignmentAid", kAlignmentAid, kAlignmentAidHelp,
            &officepictures::kAlignmentAid),
    panelOf(Command::Composition, "composition", "pageComposition", kCompositionPanel, kCompositionHelp,
            &officepictures::kComposition),
    panelOf(Command::RestTimer, "eyeshield_remind", "pageEyeshieldRemind", kEyeshieldPanel, kEyeshieldRemindHelp,
            &officepictures::kRest),
    panelOf(Command::AiDualMode, "ai_dual_mode", "pageAIDualMode", kAiDualMode, kAiDualModeHelp,
            &officepictures::kDualMode),
};

} // namespace

std::span<const PanelSpec> officePanels()
{
    return kPanels;
}
