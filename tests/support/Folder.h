// A folder of its own for a test, gone with its contents afterwards; and whole files in one call.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

class Folder {
public:
    Folder()
    {
        std::string name = (std::filesystem::temp_directory_path() / "desk-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no folder for the test");
        }
        m_path = name;
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() { std::filesystem::remove_all(m_path); }

    [[nodiscard]] std::filesystem::path operator/(const std::string& name) const { return m_path / name; }
    [[nodiscard]] const std::filesystem::path& Path() const { return m_path; }
    [[nodiscard]] long FileCount() const
    {
        return std::distance(std::filesystem::directory_iterator(m_path), {});
    }

private:
    std::filesystem::path m_path;
};

inline std::string ContentOf(const std::filesystem::path& file)
{
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

inline void WriteFile(const std::filesystem::path& file, const std::string& text)
{
    std::ofstream(file, std::ios::binary) << text;
}
