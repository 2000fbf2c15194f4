/// Looks at the dialogs of this very program, and writes down what they show.
#ifndef STAAD_TESTS_DIALOGS_ONLOOKER_H
#define STAAD_TESTS_DIALOGS_ONLOOKER_H

#include <atomic>
#include <fstream>
#include <string>
#include <string_view>
#include <thread>

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

/// As long as it lives, describes the first dialog that appears: its owner, caption, texts, icon, buttons; of a file
/// dialog the filters and the initial name. The last line of a description is "shown".
class onlooker {
public:
    explicit onlooker(result_file& result);
    ~onlooker();
    onlooker(const onlooker&) = delete;
    onlooker& operator=(const onlooker&) = delete;

private:
    void look() const;

    result_file& result_;
    std::atomic<bool> finished_{false};
    std::thread thread_;
};

/// Writes what stands in the field for the name of the file dialog that some program shows: whether every key has
/// arrived.
void read_file_dialog(result_file& result);

} // namespace STAAD

#endif
