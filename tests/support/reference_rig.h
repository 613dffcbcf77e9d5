#pragma once

// A converter in a folder of its own, with doubles of its ports.

#include <optional>
#include <string>
#include <vector>

#include "platform/utf8.h"
#include "reference/converter.h"
#include "support/fake_timers.h"
#include "support/temporary_folder.h"

namespace quorix::testing {

/// Answers in the order of `answers`; the last one stays. An empty list is no connection.
class FakeHttp : public HttpClient {
  public:
    std::optional<std::vector<std::uint8_t>> Get(const HttpRequest& request) override {
        requests.push_back(request);
        if (answers.empty()) {
            return std::nullopt;
        }
        const std::optional<std::string> answer = answers.front();
        if (answers.size() > 1) {
            answers.erase(answers.begin());
        }
        if (!answer) {
            return std::nullopt;
        }
        const std::size_t size = request.wantedBytes == 0 ? answer->size() : request.wantedBytes;
        const std::string body = answer->substr(0, size);
        return std::vector<std::uint8_t>(body.begin(), body.end());
    }
    std::vector<std::optional<std::string>> answers;
    std::vector<HttpRequest> requests;
};

class FakeNotices : public Notices {
  public:
    void Show(const Notice& notice) override { shown.push_back(notice); }
    std::vector<Notice> shown;
};

struct ConverterRig {
    TemporaryFolder folder;
    std::u16string locale = u"English (US)";
    FakeTimers timers;
    FakeHttp http;
    FakeNotices notices;
    std::string memory;
    std::u16string editor;

    Converter Make() {
        return Converter({locale, timers, http, notices, [this](std::string_view plain) { memory = plain; },
                          [this] { return memory; }, [this](std::u16string_view text) { editor += text; }},
                         folder.Path());
    }
};

}  // namespace quorix::testing
