/// Looks at the dialogs of this very program, as whoever sits in front of it does.
#ifndef STAAD_TESTS_DIALOGS_ONLOOKER_H
#define STAAD_TESTS_DIALOGS_ONLOOKER_H

#include "tests/dialogs/result_file.h"

#include <atomic>
#include <thread>

namespace STAAD {

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

/// Writes what stands in the field for the name of the file dialog that some program shows, and the files listed: who
/// types may see whether every key has arrived.
void read_file_dialog(result_file& result);

} // namespace STAAD

#endif
