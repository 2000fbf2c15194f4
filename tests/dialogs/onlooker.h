/// Looks at the dialogs of this very program, as whoever sits in front of it does.
#ifndef STAAD_TESTS_DIALOGS_ONLOOKER_H
#define STAAD_TESTS_DIALOGS_ONLOOKER_H

#include "tests/dialogs/result_file.h"

#include <windows.h>

#include <atomic>
#include <string>
#include <thread>

namespace STAAD {

/// As long as it lives, describes the first dialog that appears: its owner, caption, texts, icon, buttons; of a file
/// dialog the filters and the initial name. The last line of a description is "shown". Then what stands in the field
/// for the name is kept in a file of its own, whoever types may look there whether every key has arrived.
class onlooker {
public:
    explicit onlooker(result_file& result, std::string name_file = {});
    ~onlooker();
    onlooker(const onlooker&) = delete;
    onlooker& operator=(const onlooker&) = delete;

private:
    void look() const;
    void watch_name(HWND dialog) const;

    result_file& result_;
    std::string name_file_;
    std::atomic<bool> finished_{false};
    std::thread thread_;
};

} // namespace STAAD

#endif
