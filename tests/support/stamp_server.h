// A time-stamp service on the loopback, which stamps by openssl.
#pragma once

#include "support/certificates.h"

#include <atomic>
#include <string>
#include <thread>

namespace quillon::test {

class StampServer {
public:
    enum class Knows { Rfc3161, OldKind, Nothing };

    StampServer(const Certificates& certificates, Knows knows);
    ~StampServer();
    StampServer(const StampServer&) = delete;
    StampServer& operator=(const StampServer&) = delete;

    std::string Address() const;
    /// Requests so far, of both kinds.
    int Requests() const { return requests_; }

private:
    void Serve();
    void Answer(int connection);
    std::string StampFor(const std::string& request, const std::string& body);
    std::string Rfc3161Stamp(const std::string& query);
    std::string OldStamp(const std::string& request);

    const Certificates& certificates_;
    Knows knows_;
    TempFolder folder_;
    int listening_;
    int port_ = 0;
    std::atomic<int> requests_{0};
    std::thread thread_;
};

} // namespace quillon::test
