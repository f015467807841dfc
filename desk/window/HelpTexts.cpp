#include "desk/window/HelpTexts.h"

namespace Desk {

namespace {

// clang-format off
constexpr HelpRow OnPlan[] = {
    {"1, 2, 3", QT_TRANSLATE_NOOP("Desk", "takes the proposal with this number")},
    {"0", QT_TRANSLATE_NOOP("Desk", "takes the proposal for the whole beam")},
    {QT_TRANSLATE_NOOP("Desk", "Space"), QT_TRANSLATE_NOOP("Desk", "goes to the next annotation that a text is wanted for")},
    {QT_TRANSLATE_NOOP("Desk", "Enter"), QT_TRANSLATE_NOOP("Desk", "goes to the line for a text, where digits are its characters")},
    {QT_TRANSLATE_NOOP("Desk", "any other character"), QT_TRANSLATE_NOOP("Desk", "begins a text and narrows the list")},
    {"Esc", QT_TRANSLATE_NOOP("Desk", "lets go what is chosen; goes back a step while a beam is drawn")},
    {QT_TRANSLATE_NOOP("Desk", "arrow keys, Page Up, Page Down"), QT_TRANSLATE_NOOP("Desk", "move the plan")},
};
constexpr HelpRow OfMouse[] = {
    {QT_TRANSLATE_NOOP("Desk", "click"), QT_TRANSLATE_NOOP("Desk", "chooses an annotation; on a beam or wall itself its name")},
    {QT_TRANSLATE_NOOP("Desk", "Ctrl+click"), QT_TRANSLATE_NOOP("Desk", "chooses one more, or lets it go")},
    {QT_TRANSLATE_NOOP("Desk", "double click"), QT_TRANSLATE_NOOP("Desk", "opens the panel on the annotation")},
    {QT_TRANSLATE_NOOP("Desk", "right button"), QT_TRANSLATE_NOOP("Desk", "chooses it too, and offers what can be done with it")},
    {QT_TRANSLATE_NOOP("Desk", "rest on a beam or wall"), QT_TRANSLATE_NOOP("Desk", "tells its name, its texts and the area of their bars")},
    {QT_TRANSLATE_NOOP("Desk", "drag with Shift"), QT_TRANSLATE_NOOP("Desk", "a frame: to the right it chooses the beams in it, to the left those that it touches as well")},
    {QT_TRANSLATE_NOOP("Desk", "drag of bare ground, or with the middle button"), QT_TRANSLATE_NOOP("Desk", "moves the plan")},
    {QT_TRANSLATE_NOOP("Desk", "wheel"), QT_TRANSLATE_NOOP("Desk", "zooms at the pointer")},
    {QT_TRANSLATE_NOOP("Desk", "drag of a handle"), QT_TRANSLATE_NOOP("Desk", "moves an end of the chosen beam or wall")},
};
constexpr HelpRow InLine[] = {
    {QT_TRANSLATE_NOOP("Desk", "Up, Down, Page Up, Page Down"), QT_TRANSLATE_NOOP("Desk", "move the mark in the list")},
    {QT_TRANSLATE_NOOP("Desk", "Enter"), QT_TRANSLATE_NOOP("Desk", "takes the marked text")},
    {QT_TRANSLATE_NOOP("Desk", "Ctrl+Enter"), QT_TRANSLATE_NOOP("Desk", "takes the text as typed")},
    {"Esc", QT_TRANSLATE_NOOP("Desk", "clears the line, then goes back to the plan")},
};
constexpr HelpRow InPanel[] = {
    {QT_TRANSLATE_NOOP("Desk", "left button"), QT_TRANSLATE_NOOP("Desk", "picks")},
    {QT_TRANSLATE_NOOP("Desk", "right button, Enter, menu key"), QT_TRANSLATE_NOOP("Desk", "takes the composed text")},
    {"Esc", QT_TRANSLATE_NOOP("Desk", "leaves the annotation as it was")},
    {QT_TRANSLATE_NOOP("Desk", "Tab, arrow keys"), QT_TRANSLATE_NOOP("Desk", "go from list to list; pick in a list")},
};
constexpr HelpRow Typed[] = {
    {"8000,0", QT_TRANSLATE_NOOP("Desk", "a position, x and y in mm")},
    {"@6000,0", QT_TRANSLATE_NOOP("Desk", "x and y from the position before")},
    {"@6000<90", QT_TRANSLATE_NOOP("Desk", "length and degrees from the position before")},
    {"6000", QT_TRANSLATE_NOOP("Desk", "a length in the direction of the pointer")},
};

constexpr const char* LineSign = "\u2501\u2501";
constexpr const char* BoxSign = "\u25A0";
constexpr HelpRow Drawn[] = {
    {LineSign, QT_TRANSLATE_NOOP("Desk", "beams, to scale"), &PlanColors::beam},
    {LineSign, QT_TRANSLATE_NOOP("Desk", "walls"), &PlanColors::wall},
    {LineSign, QT_TRANSLATE_NOOP("Desk", "axes"), &PlanColors::axis},
    {"2B25", QT_TRANSLATE_NOOP("Desk", "annotations"), &PlanColors::text},
    {"2B25", QT_TRANSLATE_NOOP("Desk", "bars at the ends of a beam"), &PlanColors::endText},
    {LineSign, QT_TRANSLATE_NOOP("Desk", "what is chosen, its handles, and what is being drawn"), &PlanColors::chosen},
    {BoxSign, QT_TRANSLATE_NOOP("Desk", "the ground of the chosen annotation"), &PlanColors::chosenText},
    {"\u26A0", QT_TRANSLATE_NOOP("Desk", "after an underlined annotation: it has a problem, which F8 and the list of problems tell"), &PlanColors::mark},
    {"\u25AD", QT_TRANSLATE_NOOP("Desk", "around a text of a drawing: nothing ties it to a beam for certain"), &PlanColors::mark},
    {LineSign, QT_TRANSLATE_NOOP("Desk", "lines of a drawing, which stay as they are"), &PlanColors::backdrop},
};
constexpr HelpRow Written[] = {
    {"A B C D", QT_TRANSLATE_NOOP("Desk", "the grade of the steel, first to fourth")},
    {"2B22+3B25/2B22", QT_TRANSLATE_NOOP("Desk", "bars of a layer, those at the corners first; after the stroke the layer below")},
    {"2B25;4B25", QT_TRANSLATE_NOOP("Desk", "top bars; bottom bars")},
    {"6B25 4/2", QT_TRANSLATE_NOOP("Desk", "bars in rows, from the top down")},
    {"G", QT_TRANSLATE_NOOP("Desk", "before bars: side bars, that hold the stirrups of a deep beam")},
    {"N  *", QT_TRANSLATE_NOOP("Desk", "before bars: torsion bars at the sides")},
    {"A8@100/200(2)", QT_TRANSLATE_NOOP("Desk", "stirrups: spacing near the supports, spacing between, legs; mm")},
    {"KL1(3A)", QT_TRANSLATE_NOOP("Desk", "name: type, number, spans; A a cantilever at one end, B at both")},
    {"300x600", QT_TRANSLATE_NOOP("Desk", "section: width and height in mm")},
};
constexpr HelpRow Listed[] = {
    {"\u25B8", QT_TRANSLATE_NOOP("Desk", "the last text that the project supports; of names the first free one")},
    {QT_TRANSLATE_NOOP("Desk", "bold"), QT_TRANSLATE_NOOP("Desk", "the present text")},
    {QT_TRANSLATE_NOOP("Desk", "3 x"), QT_TRANSLATE_NOOP("Desk", "how often the project uses it")},
    {QT_TRANSLATE_NOOP("Desk", "In the project"), QT_TRANSLATE_NOOP("Desk", "what other beams have, the likeliest first; then guesses, and rows of the reference table when they are ticked")},
};
constexpr HelpRow Reasons[] = {
    {QT_TRANSLATE_NOOP("Desk", "as KL3(3): same section"), QT_TRANSLATE_NOOP("Desk", "that beam has the text, and what both beams have in common")},
    {QT_TRANSLATE_NOOP("Desk", "as the span next to it"), QT_TRANSLATE_NOOP("Desk", "other texts of this beam say so")},
    {QT_TRANSLATE_NOOP("Desk", "gives 982 of 900 mm\u00B2"), QT_TRANSLATE_NOOP("Desk", "the steel that it gives, and the steel required; a new one is used by no beam yet")},
    {QT_TRANSLATE_NOOP("Desk", "60 % of the votes"), QT_TRANSLATE_NOOP("Desk", "its share in what the beams most like this one have")},
};
constexpr HelpRow Status[] = {
    {QT_TRANSLATE_NOOP("Desk", "at the left"), QT_TRANSLATE_NOOP("Desk", "what was done and why, what is waited for, or what the command under the pointer does")},
    {QT_TRANSLATE_NOOP("Desk", "\u26A0 3 problems"), QT_TRANSLATE_NOOP("Desk", "how many problems the checks find; a press shows and hides their list")},
    {QT_TRANSLATE_NOOP("Desk", "3 of 41"), QT_TRANSLATE_NOOP("Desk", "which of the annotations or problems found it is")},
    {QT_TRANSLATE_NOOP("Desk", "at the right"), QT_TRANSLATE_NOOP("Desk", "the beams and walls of the project")},
};
constexpr HelpRow InSection[] = {
    {QT_TRANSLATE_NOOP("Desk", "982 of 900 mm\u00B2"), QT_TRANSLATE_NOOP("Desk", "the steel that the annotation gives, and the steel required")},
    {QT_TRANSLATE_NOOP("Desk", "red"), QT_TRANSLATE_NOOP("Desk", "cannot be read, does not fit, or is too little steel")},
};

constexpr HelpGroup Keys[] = {
    {QT_TRANSLATE_NOOP("Desk", "On the plan"), OnPlan},
    {QT_TRANSLATE_NOOP("Desk", "By mouse on the plan"), OfMouse},
    {QT_TRANSLATE_NOOP("Desk", "While a text is typed"), InLine},
    {QT_TRANSLATE_NOOP("Desk", "In a panel"), InPanel},
    {QT_TRANSLATE_NOOP("Desk", "Typed positions"), Typed},
};
constexpr HelpGroup Explained[] = {
    {QT_TRANSLATE_NOOP("Desk", "The plan"), Drawn},
    {QT_TRANSLATE_NOOP("Desk", "Annotations"), Written},
    {QT_TRANSLATE_NOOP("Desk", "The lists of texts"), Listed},
    {QT_TRANSLATE_NOOP("Desk", "Reasons of proposals"), Reasons},
    {QT_TRANSLATE_NOOP("Desk", "The section"), InSection},
    {QT_TRANSLATE_NOOP("Desk", "The status line"), Status},
};
// clang-format on

}  // namespace

std::span<const HelpGroup> KeysBesideMenus() { return Keys; }
std::span<const HelpGroup> Meanings() { return Explained; }

}  // namespace Desk
