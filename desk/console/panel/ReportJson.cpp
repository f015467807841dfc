// The same for programs.
#include "desk/console/panel/Report.h"

#include "desk/project/Encoding.h"

namespace Desk::Panels {

namespace {

using Json = nlohmann::ordered_json;

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
        json.push_back(effect.json);
    }
    return json;
}

}  // namespace

Json JsonOf(const Picture& picture)
{
    Json json = {{"shown", picture.shown}, {"x", picture.place.left}, {"y", picture.place.top}};
    if (picture.holding.text) {
        json["text"] = Utf8FromGbk(*picture.holding.text);
        if (picture.holding.bound) {
            json["bound"] = *picture.holding.bound;
        }
    } else {
        json["groups"] = Json::array();
        for (const Holding::Group& group : picture.holding.groups) {
            std::vector<std::string> pieces;
            std::transform(group.pieces.begin(), group.pieces.end(), std::back_inserter(pieces),
                           Utf8FromGbk);
            json["groups"].push_back(
                {{"group", group.number}, {"text", Utf8FromGbk(group.text)}, {"pieces", pieces}});
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
    Json json = {{"step", done.source}, {"outcome", EffectsJson(OutcomesOf(done))}};
    if (withEvents) {
        json["events"] = Json::array();
        for (const Event& event : done.events) {
            json["events"].push_back(
                {{"event", event.name},
                 {"target", event.target},
                 {"detail", event.detail},
                 {"finished by", event.finishedBy.empty() ? "dispatch" : event.finishedBy},
                 {"offered", EffectsJson(event.offered)},
                 {"dispatched", EffectsJson(event.dispatched)}});
        }
    }
    json["panel"] = JsonOf(done.picture);
    return json;
}

}  // namespace Desk::Panels
