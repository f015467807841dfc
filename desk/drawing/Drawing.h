// Drawing: a floor in a DXF file. It is read as a project, and saved by changing the values of the texts
// that were changed: every other byte of the file stays as it was.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "desk/project/Backdrop.h"
#include "desk/project/Failure.h"
#include "desk/project/Fields.h"

namespace Desk {

// A text of the drawing that is an annotation of a beam.
struct AnnotationText {
    std::string handle;  // "1A3"; "#12", its number in the file, where the file has no handles
    std::string text;    // as drawn, in UTF-8
    TextPlace place;     // of its first character, on the plan
    bool inPlace = false;
    std::vector<std::string>
        roles;  // of a label's line the keys of fields, of a text in place that of its role
    std::vector<FieldRef> refs;  // parallel to roles: the annotations of the project; none while it is open
    std::string label;           // handle of the beam's name; empty while it is open
    std::optional<Message> open;  // why nothing tells for certain which beam it belongs to
};

class Drawing {
public:
    // Reads a drawing and the companion file beside it, where there is one. Throws Failure for what is no
    // ASCII DXF, for a damaged file, and for a damaged companion.
    [[nodiscard]] static Drawing Read(const std::filesystem::path& file);
    // The same in memory; name stands for the file in messages, companion is the companion's text or empty.
    [[nodiscard]] static Drawing Parse(std::string bytes, const std::string& name,
                                       std::string_view companion = {});
    struct Parts;
    explicit Drawing(std::unique_ptr<Parts> parts);
    Drawing(Drawing&&) noexcept;
    Drawing& operator=(Drawing&&) noexcept;
    ~Drawing();

    // The beams are those of the labels, in the file's order; beams that only name another label have a
    // name alone. What drawings cannot hold comes from the companion file.
    [[nodiscard]] const Project& Get() const;
    // What is drawn beside the annotations; hidden layers are left out.
    [[nodiscard]] const Backdrop& Behind() const;
    // The same with the texts that are no beam's yet, for a plan on paper.
    [[nodiscard]] Backdrop BehindWithOpenTexts() const;
    [[nodiscard]] const std::vector<AnnotationText>& Texts() const;

    // The file's bytes with the texts of a project that was got from this drawing and then edited. A text
    // that did not change keeps its bytes. Throws Failure for what the drawing cannot take.
    [[nodiscard]] std::string Written(const Project& edited) const;
    // What goes into the companion file; empty when there is nothing that a drawing cannot hold.
    [[nodiscard]] static std::string CompanionOf(const Project& edited);
    // Writes file and companion, each whole or not at all; a file that is there is copied to "FILE.bak"
    // unless that exists. Throws Failure and leaves the old file when that cannot be done.
    void Save(const Project& edited, const std::filesystem::path& file) const;

    // A beam of the project as it is when it takes an open text.
    struct Pointed {
        std::size_t beam = 0;  // index
        Beam as;
        FieldRef ref;  // the text's annotation
    };
    // The text is one of Texts() and the position on the beam that a person points to: for a text in place
    // the labelled beam there, for a label's name the outline there. Nothing where there is none.
    [[nodiscard]] std::optional<Pointed> PointTo(const Project& project, std::size_t text,
                                                 const PlanPoint& at) const;

    // A new label's beam: the outline at a position that no labelled beam of the project lies on, with the
    // position of the name; to be added after the project's beams. Nothing where there is no such outline,
    // or no label that goes the same way, which a new one is made like.
    [[nodiscard]] std::optional<Beam> LabelFor(const Project& project, const PlanPoint& at) const;

private:
    std::unique_ptr<Parts> m_parts;
};

// What the bytes begin like: an ASCII DXF, or a binary DXF or DWG, for which Read says how to get an ASCII
// one.
[[nodiscard]] bool IsDrawing(std::string_view bytes);
// "floor.beamdesk.json" beside "floor.dxf".
[[nodiscard]] std::filesystem::path CompanionFile(const std::filesystem::path& file);

// A file that may be a project or a drawing; which one, its content tells.
struct Opened {
    Project project;
    std::optional<Drawing> drawing;
};
[[nodiscard]] Opened OpenFile(const std::filesystem::path& file);
// The same for what a command is given: the sample for an empty name, standard input for "-".
[[nodiscard]] Opened OpenInput(const std::string& file);
[[nodiscard]] Project OpenProject(const std::string& file);

}  // namespace Desk
