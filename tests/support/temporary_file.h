/// A file that lives as long as the object.
#ifndef STAAD_TESTS_SUPPORT_TEMPORARY_FILE_H
#define STAAD_TESTS_SUPPORT_TEMPORARY_FILE_H

#include <filesystem>
#include <string>
#include <string_view>

namespace STAAD {

class temporary_file {
public:
    explicit temporary_file(std::string_view content);
    temporary_file(const temporary_file&) = delete;
    temporary_file& operator=(const temporary_file&) = delete;
    ~temporary_file();

    const char* path() const noexcept { return name_.c_str(); }
    std::string content() const;

private:
    std::filesystem::path folder_;
    std::string name_;
};

} // namespace STAAD

#endif
