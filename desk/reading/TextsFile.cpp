// Lines and columns of the texts' file, and its encodings.
#include "desk/reading/TextsFile.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "desk/project/Encoding.h"
#include "desk/project/Failure.h"
#include "desk/project/JsonText.h"
#include "desk/project/SafeFile.h"

namespace Desk {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view Heading = "kind\ttext";

std::string Hex(char byte)
{
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "0x%02X",
                  static_cast<unsigned>(static_cast<unsigned char>(byte)));
    return text.data();
}

void RequireUtf8(std::string_view text, const std::string& name)
{
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t length = Utf8Length(text.substr(i));
        if (length == 0) {
            throw Failure(name + ":" + LineAndColumn(text, i) + ": the byte " + Hex(text[i]) +
                          " is not UTF-8; --encoding gbk reads a GBK file");
        }
        i += length;
    }
}

std::string FromGbk(std::string_view bytes, std::size_t line, const std::string& name)
{
    std::string text = Utf8FromGbk(CString(bytes));
    const std::size_t mark = text.find("\xEF\xBF\xBD");
    if (mark != std::string::npos) {
        const std::string_view before = std::string_view(text).substr(0, mark);
        const auto isHead = [](char ch) { return (static_cast<unsigned char>(ch) & 0xC0) != 0x80; };
        const auto column = std::count_if(before.begin(), before.end(), isHead) + 1;
        throw Failure(name + ":" + std::to_string(line) + ":" + std::to_string(column) +
                      ": a byte that is not GBK; --encoding utf-8 reads a UTF-8 file");
    }
    return text;
}

void RefuseUtf16(std::string_view bytes, const std::string& name)
{
    const std::string_view head = bytes.substr(0, 2);
    if (head == "\xFF\xFE" || head == "\xFE\xFF") {
        throw Failure(name + ": this is a UTF-16 file; save it as UTF-8");
    }
}

bool IsBlank(std::string_view line) { return line.find_first_not_of(" \t") == std::string_view::npos; }

// The fault of a text's bytes; empty for a good text.
std::string FaultOf(std::string_view text)
{
    const auto isControl = [](char ch) {
        return (static_cast<unsigned char>(ch) < 0x20 && ch != '\t') || ch == 0x7F;
    };
    const auto control = std::find_if(text.begin(), text.end(), isControl);
    if (text.size() > LongestText) {
        return "a text of " + std::to_string(text.size()) + " bytes; the longest that is read has " +
               std::to_string(LongestText);
    }
    return control == text.end() ? std::string() : "holds the control character " + Hex(*control);
}

DrawnText TakeLine(std::string_view line, std::size_t number, bool hasKinds)
{
    DrawnText drawn;
    drawn.line = number;
    const std::size_t tab = line.find('\t');
    if (hasKinds && tab != std::string_view::npos) {
        drawn.kind = line.substr(0, tab);
        line.remove_prefix(tab + 1);
    }
    drawn.text = line;
    drawn.fault = FaultOf(drawn.text);
    if (drawn.fault.empty() && hasKinds && tab == std::string_view::npos) {
        drawn.fault = "no tab between kind and text";
    } else if (drawn.fault.empty() && hasKinds && IsBlank(line)) {
        drawn.fault = "a kind without a text";
    }
    return drawn;
}

}  // namespace

TextsFile ParseTexts(std::string_view bytes, const std::string& name, Encoding encoding)
{
    RefuseUtf16(bytes, name);
    if (bytes.substr(0, ByteOrderMark.size()) == ByteOrderMark) {
        bytes.remove_prefix(ByteOrderMark.size());
    }
    if (encoding == Encoding::Utf8) {
        RequireUtf8(bytes, name);
    }
    TextsFile file;
    while (!bytes.empty()) {
        std::string_view line = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(line.size() + 1, bytes.size()));
        if (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        ++file.lines;
        const std::string utf8 =
            encoding == Encoding::Gbk ? FromGbk(line, file.lines, name) : std::string(line);
        if (file.lines == 1 && utf8 == Heading) {
            file.hasKinds = true;
        } else if (IsBlank(utf8)) {
            ++file.blankLines;
        } else {
            file.texts.push_back(TakeLine(utf8, file.lines, file.hasKinds));
        }
    }
    return file;
}

TextsFile ReadTextsFile(const std::filesystem::path& file, Encoding encoding)
{
    std::error_code error;
    if (std::filesystem::is_directory(file, error)) {
        throw Failure(file.string() + ": a folder, not a file of texts");
    }
    if (const auto size = std::filesystem::file_size(file, error); !error && size > MaxFileSize) {
        throw Failure(file.string() + ": longer than " + std::to_string(MaxFileSize >> 20U) + " MiB");
    }
    return ParseTexts(ReadWholeFile(file), file.string(), encoding);
}

}  // namespace Desk
