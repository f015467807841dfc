// In a program without its window nothing draws.
#include "desk/plan/PlanFile.h"
#include "desk/project/Failure.h"

namespace Desk {

namespace {

[[noreturn]] void Refuse(const std::filesystem::path& file)
{
    throw Failure(file.string() +
                  ": this beamdesk is built without its window and draws no PDF and no SVG");
}

}  // namespace

void WritePlan(const Project& /*project*/, const Backdrop* /*behind*/, const std::filesystem::path& file,
               double /*scale*/)
{
    Refuse(file);
}

void WriteTables(const std::string& /*title*/,
                 const std::vector<std::vector<std::vector<std::string>>>& /*tables*/,
                 const std::vector<std::string>& /*notes*/, const std::filesystem::path& file)
{
    Refuse(file);
}

}  // namespace Desk
