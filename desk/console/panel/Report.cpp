// Pictures, outcomes and events as lines.
#include "desk/console/panel/Report.h"

#include <algorithm>
#include <ostream>

#include "desk/console/Print.h"
#include "desk/console/panel/Draw.h"

namespace Desk::Panels {

namespace {

constexpr const char* Indent = "    ";

std::vector<Effect> EffectsOf(const Done& done)
{
    std::vector<Effect> effects = done.effects;
    for (const Event& event : done.events) {
        effects.insert(effects.end(), event.offered.begin(), event.offered.end());
        effects.insert(effects.end(), event.dispatched.begin(), event.dispatched.end());
    }
    return effects;
}

std::string Words(const Effect& effect)
{
    return effect.kind == EffectKind::Message ? "message box: " + effect.words : effect.words;
}

bool IsOutcome(const Effect& effect)
{
    return effect.kind == EffectKind::Delivered || effect.kind == EffectKind::Message;
}

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
    std::string joined;
    for (const Effect& effect : effects) {
        joined += (joined.empty() ? "" : ", ") + Words(effect);
    }
    return joined;
}

void PrintHead(int number, const Done& done, std::ostream& out)
{
    out << '\n' << number << ". " << done.source << '\n';
}

void PrintHolding(const Holding& holding, std::ostream& out)
{
    if (holding.text) {
        out << Indent << (holding.bound ? "item: " : "text: ") << Quoted(*holding.text);
        if (holding.bound) {
            out << (*holding.bound ? ", bound" : ", not bound");
        }
        out << '\n';
        return;
    }
    for (const Group& group : holding.groups) {
        out << Indent << "group " << group.number << ": " << Quoted(group.text) << ", pieces";
        for (const std::string& piece : group.pieces) {
            out << ' ' << Quoted(piece);
        }
        out << '\n';
    }
    out << Indent << (holding.groups.empty() ? "all groups empty, " : "");
    if (holding.editedRow == -1) {
        out << "mode: new piece\n";
    } else {
        out << "mode: edit row " << holding.editedRow << '\n';
    }
}

void PrintOutcomes(const std::vector<Effect>& effects, std::ostream& out)
{
    for (const Effect& effect : effects) {
        if (IsOutcome(effect)) {
            out << "  -> " << Words(effect) << '\n';
        }
    }
}

}  // namespace

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
    PrintHead(number, done, out);
    const std::vector<Effect> effects = EffectsOf(done);
    PrintOutcomes(effects, out);
    const bool delivered = std::any_of(effects.begin(), effects.end(), [](const Effect& effect) {
        return effect.kind == EffectKind::Delivered;
    });
    const bool hidByUser = before.shown && !done.picture.shown && !done.events.empty();
    if (hidByUser && !delivered) {
        out << "  -> hidden, nothing delivered\n";
    }
    if (IsSame(before, done.picture)) {
        const bool turned = before.shown != done.picture.shown;
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
    const std::vector<Effect> effects = EffectsOf(done);
    if (std::any_of(effects.begin(), effects.end(), IsOutcome)) {
        out << number << ". " << done.source << '\n';
        PrintOutcomes(effects, out);
    }
}

void PrintEvents(int number, const Done& done, std::ostream& out)
{
    PrintHead(number, done, out);
    if (!done.effects.empty() || done.events.empty()) {
        out << "    by the host: " << (done.effects.empty() ? "no change" : JoinWords(done.effects))
            << '\n';
    }
    int nameWidth = 0;
    int targetWidth = 0;
    int detailWidth = 0;
    for (const Event& event : done.events) {
        nameWidth = std::max(nameWidth, DisplayWidth(event.name));
        targetWidth = std::max(targetWidth, DisplayWidth(event.target));
        detailWidth = std::max(detailWidth, DisplayWidth(event.detail));
    }
    for (const Event& event : done.events) {
        out << Indent << PadRight(event.name, nameWidth + 2) << PadRight(event.target, targetWidth + 2)
            << PadRight(event.detail, detailWidth + 2)
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
