// The same for programs.
#include "desk/console/panel/Report.h"

namespace Desk::Panels {

namespace {

using Json = nlohmann::ordered_json;

const char* KindName(WindowKind kind)
{
    switch (kind) {
    case WindowKind::ListBox: return "list";
    case WindowKind::EditBox: return "box";
    case WindowKind::Button: return "button";
    default: return "label";
    }
}

Json ControlJson(const Control& control)
{
    Json json = {{"kind", KindName(control.kind)}};
    if (control.kind != WindowKind::Label) {
        json["id"] = control.id;
    }
    if (control.kind == WindowKind::ListBox) {
        json["rows"] = control.rows;
        json["selected"] = control.selection;
        json["top"] = control.top;
    } else {
        json["text"] = control.text;
    }
    if (!control.enabled) {
        json["enabled"] = false;
    }
    if (control.focused) {
        json["focus"] = true;
    }
    return json;
}

Json EffectsJson(const std::vector<Effect>& effects)
{
    Json json = Json::array();
    for (const Effect& effect : effects) {
        const Delivery& delivery = effect.delivery;
        switch (effect.kind) {
        case EffectKind::Delivered:
            if (delivery.toItem) {
                json.push_back({{"delivered", "item"}, {"text", delivery.text}});
            } else {
                json.push_back({{"delivered", "callback"},
                                {"first", delivery.receiver},
                                {"mode", delivery.mode},
                                {"text", delivery.text},
                                {"code", delivery.code}});
            }
            break;
        case EffectKind::Message: json.push_back({{"message", effect.words}}); break;
        case EffectKind::Notified: json.push_back({{"notified", effect.words}}); break;
        case EffectKind::Changed: json.push_back({{"changed", effect.words}}); break;
        }
    }
    return json;
}

void KeepOutcomes(Json& all, const Json& effects)
{
    for (const Json& effect : effects) {
        if (effect.contains("delivered") || effect.contains("message")) {
            all.push_back(effect);
        }
    }
}

}  // namespace

Json JsonOf(const Picture& picture)
{
    Json json = {{"shown", picture.shown}, {"x", picture.place.left}, {"y", picture.place.top}};
    if (picture.holding.text) {
        json["text"] = *picture.holding.text;
        if (picture.holding.bound) {
            json["bound"] = *picture.holding.bound;
        }
    } else {
        json["groups"] = Json::array();
        for (const Group& group : picture.holding.groups) {
            json["groups"].push_back(
                {{"group", group.number}, {"text", group.text}, {"pieces", group.pieces}});
        }
        json["edited row"] = picture.holding.editedRow;
    }
    for (const Control& control : picture.controls) {
        json["controls"].push_back(ControlJson(control));
    }
    return json;
}

Json JsonOf(const Done& done, bool withEvents)
{
    Json json = {{"step", done.source}, {"outcome", Json::array()}};
    Json events = Json::array();
    KeepOutcomes(json["outcome"], EffectsJson(done.effects));
    for (const Event& event : done.events) {
        const Json offered = EffectsJson(event.offered);
        const Json dispatched = EffectsJson(event.dispatched);
        KeepOutcomes(json["outcome"], offered);
        KeepOutcomes(json["outcome"], dispatched);
        events.push_back({{"event", event.name}, {"target", event.target}, {"detail", event.detail}});
        events.back()["finished by"] = event.finishedBy.empty() ? "dispatch" : event.finishedBy;
        events.back()["offered"] = offered;
        events.back()["dispatched"] = dispatched;
    }
    if (withEvents) {
        json["events"] = events;
    }
    json["panel"] = JsonOf(done.picture);
    return json;
}

}  // namespace Desk::Panels
