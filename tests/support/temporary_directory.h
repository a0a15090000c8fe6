// A folder of its own for one test, gone with it.
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

class TemporaryDirectory {
  public:
    TemporaryDirectory() {
        std::string name = (std::filesystem::temp_directory_path() / "tolmark test XXXXXX").string();
        if (!mkdtemp(name.data())) throw std::runtime_error("no temporary directory");
        path_ = name + "/";
    }
    ~TemporaryDirectory() { std::filesystem::remove_all(path_); }
    TemporaryDirectory(const TemporaryDirectory&) = delete;

    /// With a "/" at its end.
    const std::string& path() const { return path_; }
    void write(const std::string& name, const std::string& text) const {
        std::ofstream(path_ + name, std::ios::binary) << text;
    }
    std::string read(const std::string& name) const {
        std::ifstream file(path_ + name, std::ios::binary);
        std::ostringstream text;
        text << file.rdbuf();
        return text.str();
    }

  private:
    std::string path_;
};
