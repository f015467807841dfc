#include "desk/drawing/Drawing.h"

#include "desk/project/ProjectFile.h"
#include "desk/project/SafeFile.h"

namespace Desk {

struct Drawing::Parts {
    Project project;
    Backdrop backdrop;
    std::vector<AnnotationText> texts;
};

Drawing::Drawing(std::unique_ptr<Parts> parts) : m_parts(std::move(parts)) {}
Drawing::Drawing(Drawing&&) noexcept = default;
Drawing& Drawing::operator=(Drawing&&) noexcept = default;
Drawing::~Drawing() = default;

Drawing Drawing::Read(const std::filesystem::path& file)
{
    return Parse(ReadWholeFile(file), file.string());
}

Drawing Drawing::Parse(std::string /*bytes*/, const std::string& /*name*/, std::string_view /*companion*/)
{
    return Drawing(std::make_unique<Parts>());
}

const Project& Drawing::Get() const { return m_parts->project; }
const Backdrop& Drawing::Behind() const { return m_parts->backdrop; }
const std::vector<AnnotationText>& Drawing::Texts() const { return m_parts->texts; }
std::string Drawing::Written(const Project& /*edited*/) const { return {}; }
std::string Drawing::CompanionOf(const Project& /*edited*/) { return {}; }
void Drawing::Save(const Project& edited, const std::filesystem::path& file) const
{
    ReplaceFile(file, Written(edited));
}

std::optional<Drawing::Pointed> Drawing::PointTo(const Project& /*project*/, std::size_t /*text*/,
                                                 const PlanPoint& /*at*/) const
{
    return std::nullopt;
}

bool IsDrawing(std::string_view bytes)
{
    const std::size_t first = bytes.find_first_not_of(" \t\r\n\xEF\xBB\xBF");
    return first != std::string_view::npos && bytes[first] != '{' && bytes[first] != '[';
}

std::filesystem::path CompanionFile(const std::filesystem::path& file)
{
    return std::filesystem::path(file).replace_extension(".beamdesk.json");
}

Opened OpenFile(const std::filesystem::path& file)
{
    std::string bytes = ReadWholeFile(file);
    if (!IsDrawing(bytes)) {
        return {ParseProject(bytes, file.string()), std::nullopt};
    }
    Drawing drawing = Drawing::Read(file);
    return {drawing.Get(), std::move(drawing)};
}

Project OpenProject(const std::string& file)
{
    return file.empty() ? SampleProject() : OpenFile(file).project;
}

}  // namespace Desk
