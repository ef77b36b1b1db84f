#include "support/stamp_server.h"

#include "support/run_program.h"

#include <arpa/inet.h>
#include <array>
#include <cstdlib>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quillon::test {

namespace {

constexpr const char* kConfiguration = R"([tsa]
default_tsa = service
[service]
serial = @/serial
signer_digest = sha256
default_policy = 1.2.3.4.1
digests = sha256, sha384, sha512
ess_cert_id_chain = no
)";
// What is signed by an older stamp: the signature of a 2048-bit key, at the end of the request.
constexpr std::size_t kSignatureSize = 256;

std::string ReadRequest(int connection)
{
    std::string request;
    std::array<char, 4096> piece{};
    for (;;) {
        const ssize_t count = recv(connection, piece.data(), piece.size(), 0);
        if (count <= 0)
            return request;
        request.append(piece.data(), std::size_t(count));
        const std::size_t headerEnd = request.find("\r\n\r\n");
        const std::size_t length = request.find("Content-Length: ");
        if (headerEnd == std::string::npos || length == std::string::npos)
            continue;
        if (request.size() >=
            headerEnd + 4 + std::strtoul(request.c_str() + length + 16, nullptr, 10))
            return request;
    }
}

bool Shell(const std::string& folder, const std::string& command)
{
    return RunProgram({"/bin/sh", "-c", "cd " + folder + " && " + command}).exitCode == 0;
}

} // namespace

StampServer::StampServer(const Certificates& certificates, Knows knows)
    : certificates_(certificates), knows_(knows), listening_(socket(AF_INET, SOCK_STREAM, 0))
{
    std::string configuration = kConfiguration;
    configuration.replace(configuration.find('@'), 1, folder_.Path());
    folder_.Put("ts.cnf", configuration);
    folder_.Put("serial", "01\n");
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    EXPECT_EQ(bind(listening_, reinterpret_cast<sockaddr*>(&address), size), 0);
    EXPECT_EQ(listen(listening_, 8), 0);
    EXPECT_EQ(getsockname(listening_, reinterpret_cast<sockaddr*>(&address), &size), 0);
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { Serve(); });
}

StampServer::~StampServer()
{
    shutdown(listening_, SHUT_RDWR);
    thread_.join();
    close(listening_);
}

std::string StampServer::Address() const
{
    return "http://127.0.0.1:" + std::to_string(port_) + "/stamp";
}

void StampServer::Serve()
{
    for (;;) {
        const int connection = accept(listening_, nullptr, nullptr);
        if (connection < 0)
            return;
        Answer(connection);
        close(connection);
    }
}

void StampServer::Answer(int connection)
{
    const std::string request = ReadRequest(connection);
    const std::size_t headerEnd = request.find("\r\n\r\n");
    if (headerEnd == std::string::npos)
        return;
    ++requests_;
    const std::string stamp = StampFor(request, request.substr(headerEnd + 4));
    const std::string type = request.find("timestamp-query") != std::string::npos
                                 ? "application/timestamp-reply"
                                 : "application/octet-stream";
    const std::string answer =
        (stamp.empty() ? std::string("HTTP/1.0 400 Bad Request\r\n")
                       : "HTTP/1.0 200 OK\r\nContent-Type: " + type + "\r\n") +
        "Content-Length: " + std::to_string(stamp.size()) + "\r\nConnection: close\r\n\r\n" + stamp;
    EXPECT_EQ(send(connection, answer.data(), answer.size(), MSG_NOSIGNAL),
              static_cast<ssize_t>(answer.size()));
}

std::string StampServer::StampFor(const std::string& request, const std::string& body)
{
    const bool isQuery = request.find("application/timestamp-query") != std::string::npos;
    if (isQuery && knows_ == Knows::Rfc3161)
        return Rfc3161Stamp(body);
    return !isQuery && knows_ == Knows::OldKind ? OldStamp(body) : "";
}

std::string StampServer::Rfc3161Stamp(const std::string& query)
{
    folder_.Put("query", query);
    const bool isMade = Shell(folder_.Path(), "openssl ts -reply -config ts.cnf -queryfile query "
                                              "-signer " +
                                                  certificates_.Path("tsa.pem") + " -inkey " +
                                                  certificates_.Path("tsa.key") + " -chain " +
                                                  certificates_.Path("ca.pem") + " -out reply");
    return isMade ? folder_.Get("reply") : "";
}

std::string StampServer::OldStamp(const std::string& request)
{
    folder_.Put("request", request);
    const bool isMade =
        Shell(folder_.Path(), "base64 -d -i request | tail -c " + std::to_string(kSignatureSize) +
                                  " > signature && openssl smime -sign -binary -nodetach -md "
                                  "sha256 -in signature -signer " +
                                  certificates_.Path("tsa.pem") + " -inkey " +
                                  certificates_.Path("tsa.key") + " -certfile " +
                                  certificates_.Path("ca.pem") + " -outform DER | base64 > reply");
    return isMade ? folder_.Get("reply") : "";
}

} // namespace quillon::test
