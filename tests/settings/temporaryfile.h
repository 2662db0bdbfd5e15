// A settings file for one test.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

#include "hostapi/host.h"

// The file is in a new folder, which is removed with it.
class TemporaryFile
{
public:
    TemporaryFile() : m_folder(makeFolder()) {}
    ~TemporaryFile() { std::filesystem::remove_all(m_folder); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    CString path() const { return file().wstring().c_str(); }
    CString pathInMissingFolder() const { return (m_folder / "none" / "x.ini").wstring().c_str(); }

    void write(const std::string& bytes) const { std::ofstream(file(), std::ios::binary) << bytes; }

    // Replaces the file by a folder, so that the file cannot be written.
    void block() const
    {
        std::filesystem::remove(file());
        std::filesystem::create_directory(file());
    }

    std::string read() const
    {
        std::ifstream stream(file(), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

private:
    static std::filesystem::path makeFolder()
    {
        const std::string name = "settings-" + std::to_string(std::random_device()());
        std::filesystem::create_directory(std::filesystem::temp_directory_path() / name);
        return std::filesystem::temp_directory_path() / name;
    }

    std::filesystem::path file() const { return m_folder / "properties.ini"; }

    std::filesystem::path m_folder;
};
