/// A desktop that writes down what it is asked and gives the answers that the test has set.
#ifndef STAAD_TESTS_SUPPORT_SCRIPTED_SERVICES_H
#define STAAD_TESTS_SUPPORT_SCRIPTED_SERVICES_H

#include "staad/host/platform_services.h"

#include <string>
#include <vector>

namespace STAAD {

/// In use as long as it lives; then the default services are back.
class scripted_services : public PlatformServices {
public:
    scripted_services() { SetPlatformServices(this); }
    ~scripted_services() override { SetPlatformServices(nullptr); }
    scripted_services(const scripted_services&) = delete;
    scripted_services& operator=(const scripted_services&) = delete;

    Answer ShowMessage(const Message& message) override
    {
        messages.push_back(message);
        return answer;
    }
    std::string AskForFile(const FileQuestion& question) override
    {
        questions.push_back(question);
        return chosen_file;
    }
    bool CanRead(const char* path) override
    {
        tested_paths.emplace_back(path == nullptr ? "(null)" : path);
        return readable;
    }

    // the script
    Answer answer = Answer::Ok;
    std::string chosen_file;
    bool readable = true;

    // what was asked, in order
    std::vector<Message> messages;
    std::vector<FileQuestion> questions;
    std::vector<std::string> tested_paths;
};

} // namespace STAAD

#endif
