#pragma once

#include "tests/bench/library/BenchPlatform.h"
#include "tests/bench/library/PlainLibrary.h"

#include <random>
#include <string>

// A library file of the platform's folder that lives as long as this.
class BenchFile {
public:
    BenchFile(BenchPlatform& platform, const std::string& name)
        : files_(platform.FileSystem()),
          path_(platform.Folder() + "tnt-bench-" + std::to_string(std::random_device()()) + "-" +
                name) {}
    BenchFile(BenchPlatform& platform, const std::string& name, const PlainLibrary& content)
        : BenchFile(platform, name) {
        WritePlainly(files_, path_, content);
    }
    ~BenchFile() {
        files_.Remove(path_);
        files_.Remove(path_ + ".bak");
    }
    BenchFile(const BenchFile&) = delete;
    BenchFile& operator=(const BenchFile&) = delete;

    [[nodiscard]] const std::string& Path() const noexcept { return path_; }

private:
    Files& files_;
    std::string path_;
};
