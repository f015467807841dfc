# Writes OUT, a translation unit that holds the bytes of the file SAMPLE.
file(READ ${SAMPLE} bytes HEX)
string(REGEX REPLACE "(................................)" "\\1\n    " bytes "${bytes}")
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
file(WRITE ${OUT} "// Made from sample.json.
#include \"desk/project/ProjectFile.h\"

namespace Desk {

Project SampleProject()
{
    static constexpr unsigned char Bytes[] = {
    ${bytes}
    };
    const std::string_view text(reinterpret_cast<const char*>(Bytes), sizeof Bytes);
    return ParseProject(text, \"the embedded sample\");
}

}  // namespace Desk
")
