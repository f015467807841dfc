// Pictures, outcomes and events as lines.
#include "desk/console/panel/Report.h"

#include <algorithm>
#include <ostream>

#include "desk/console/Print.h"
#include "desk/console/panel/Draw.h"
#include "desk/project/Encoding.h"

namespace Desk::Panels {

namespace {

constexpr const char* Indent = "    ";

bool ShowSame(const Control& a, const Control& b)
{
    return a.text == b.text && a.rows == b.rows && a.selection == b.selection && a.top == b.top;
}

// Apart from whether it shows.
bool IsSame(const Picture& a, const Picture& b)
{
    return a.place.TopLeft() == b.place.TopLeft() && a.holding == b.holding &&
           std::equal(a.controls.begin(), a.controls.end(), b.controls.begin(), b.controls.end(), ShowSame);
}

std::string JoinWords(const std::vector<Effect>& effects)
{
    return Joined(effects, [](const Effect& effect) { return effect.words; });
}

void PrintHolding(const Holding& holding, std::ostream& out)
{
    const auto quoted = [](const CString& text) { return Quoted(Utf8FromGbk(text)); };
    if (holding.text) {
        out << Indent << (holding.bound ? "item: " : "text: ") << quoted(*holding.text)
            << (!holding.bound   ? ""
                : *holding.bound ? ", bound"
                                 : ", not bound")
            << '\n';
        return;
    }
    for (const Holding::Group& group : holding.groups) {
        out << Indent << "group " << group.number << ": " << quoted(group.text) << ", pieces"
            << Joined(
                   group.pieces, [&](const CString& piece) { return " " + quoted(piece); }, "")
            << '\n';
    }
    out << Indent << (holding.groups.empty() ? "all groups empty, " : "")
        << (holding.editedRow == -1 ? "mode: new piece"
                                    : "mode: edit row " + std::to_string(holding.editedRow))
        << '\n';
}

void PrintOutcomes(const std::vector<Effect>& outcomes, std::ostream& out)
{
    for (const Effect& outcome : outcomes) {
        out << "  -> " << outcome.words << '\n';
    }
}

}  // namespace

std::vector<Effect> OutcomesOf(const Done& done)
{
    std::vector<Effect> outcomes = done.effects;
    for (const Event& event : done.events) {
        outcomes.insert(outcomes.end(), event.offered.begin(), event.offered.end());
        outcomes.insert(outcomes.end(), event.dispatched.begin(), event.dispatched.end());
    }
    std::erase_if(outcomes, [](const Effect& effect) { return !effect.isOutcome; });
    return outcomes;
}

void PrintPicture(const Picture& picture, bool withIds, std::ostream& out)
{
    if (!picture.shown) {
        out << Indent << "(hidden)\n";
    } else if (const CPoint corner = picture.place.TopLeft(); !(corner == CPoint())) {
        out << Indent << "(at " << corner.x << ',' << corner.y << ")\n";
    }
    for (const std::string& line : Draw(picture, withIds)) {
        out << (line.empty() ? "" : Indent) << line << '\n';
    }
    PrintHolding(picture.holding, out);
}

void PrintStart(const std::string& title, const Picture& picture, bool withIds, std::ostream& out)
{
    out << title << "\n\n";
    PrintPicture(picture, withIds, out);
}

void PrintStep(int number, const Done& done, const Picture& before, bool withIds, std::ostream& out)
{
    out << '\n' << number << ". " << done.source << '\n';
    const std::vector<Effect> outcomes = OutcomesOf(done);
    PrintOutcomes(outcomes, out);
    const bool turned = before.shown != done.picture.shown;
    const auto isDelivery = [](const Effect& effect) { return effect.json.contains("delivered"); };
    if (turned && before.shown && !done.events.empty() &&
        std::none_of(outcomes.begin(), outcomes.end(), isDelivery)) {
        out << "  -> hidden, nothing delivered\n";
    }
    if (IsSame(before, done.picture)) {
        out << Indent
            << (!turned              ? "(as before)"
                : done.picture.shown ? "(shown, as before)"
                                     : "(hidden, as before)")
            << '\n';
    } else {
        PrintPicture(done.picture, withIds, out);
    }
}

void PrintOutcome(int number, const Done& done, std::ostream& out)
{
    if (const std::vector<Effect> outcomes = OutcomesOf(done); !outcomes.empty()) {
        out << number << ". " << done.source << '\n';
        PrintOutcomes(outcomes, out);
    }
}

void PrintEvents(int number, const Done& done, std::ostream& out)
{
    out << '\n' << number << ". " << done.source << '\n';
    if (!done.effects.empty() || done.events.empty()) {
        out << Indent << "by the host: " << (done.effects.empty() ? "no change" : JoinWords(done.effects))
            << '\n';
    }
    const auto padded = [&](const Event& event, std::string Event::*column) {
        int width = 0;
        for (const Event& one : done.events) {
            width = std::max(width, DisplayWidth(one.*column));
        }
        return PadRight(event.*column, width + 2);
    };
    for (const Event& event : done.events) {
        out << Indent << padded(event, &Event::name) << padded(event, &Event::target)
            << padded(event, &Event::detail)
            << (event.finishedBy.empty() ? "dispatched" : "finished by the " + event.finishedBy) << '\n';
        if (!event.offered.empty()) {
            out << Indent << "  offered: " << JoinWords(event.offered) << '\n';
        }
        if (!event.dispatched.empty()) {
            out << Indent << "  " << event.target << ": " << JoinWords(event.dispatched) << '\n';
        }
    }
}

}  // namespace Desk::Panels
