/// A text file that another program reads while it grows.
#ifndef STAAD_TESTS_DIALOGS_RESULT_FILE_H
#define STAAD_TESTS_DIALOGS_RESULT_FILE_H

#include <fstream>
#include <string>
#include <string_view>

namespace STAAD {

/// Lines of UTF-8, each in the file as soon as it is written.
class result_file {
public:
    explicit result_file(const char* path);

    void line(const std::string& text);
    /// The same of two texts, the second one in UTF-16; its line ends become " / ".
    void line(const std::string& text, std::wstring_view more);

private:
    std::ofstream file_;
};

} // namespace STAAD

#endif
