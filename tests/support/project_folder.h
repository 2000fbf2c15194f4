/// A ".std" file in a folder of its own, and listings beside it.
#ifndef STAAD_TESTS_SUPPORT_PROJECT_FOLDER_H
#define STAAD_TESTS_SUPPORT_PROJECT_FOLDER_H

#include "tests/support/temporary_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace STAAD {

/// The file is called "deck.std"; the folder goes with the object.
class project_folder {
public:
    explicit project_folder(const std::string& text) : model_(text) {}

    const char* model() const { return model_.path(); }
    std::string path(const std::string& name) const
    {
        return (std::filesystem::path(model_.path()).parent_path() / name).string();
    }
    void write(const std::string& name, const std::string& content) const
    {
        std::ofstream file(path(name), std::ios::binary);
        file << content;
        ASSERT_TRUE(file.flush());
    }

private:
    temporary_file model_;
};

} // namespace STAAD

#endif
