#include "support/certificates.h"

#include "support/run_program.h"

#include <gtest/gtest.h>

namespace quillon::test {

namespace {

// In the order in which each finds what it needs; "@" stands for the folder.
constexpr const char* kMaking = R"(
set -e
cd @
openssl req -x509 -newkey rsa:2048 -nodes -keyout ca.key -out ca.pem -days 30 -subj "/CN=Prov CA"
for name in code tsa; do
  openssl genrsa -traditional -out $name.key 2048
done
openssl req -new -utf8 -key code.key -subj "/O=Firma AB/CN=Firma Åke AB" -out code.csr
openssl req -new -key tsa.key -subj "/CN=Prov Stamp" -out tsa.csr
printf 'extendedKeyUsage=codeSigning\n' > code.ext
printf 'extendedKeyUsage=critical,timeStamping\n' > tsa.ext
for name in code tsa; do
  openssl x509 -req -in $name.csr -CA ca.pem -CAkey ca.key -CAcreateserial -days 20 -extfile $name.ext -out $name.pem
done
openssl crl2pkcs7 -nocrl -certfile code.pem -certfile ca.pem -outform DER -out code.spc
openssl rsa -in code.key -aes256 -passout "pass:$PASSWORD" -out locked.key
openssl rsa -in code.key -outform PVK -pvk-none -out code.pvk
openssl rsa -in code.key -provider legacy -provider default -outform PVK -pvk-strong -passout "pass:$PASSWORD" -out locked.pvk
openssl pkcs12 -export -inkey code.key -in code.pem -certfile ca.pem -passout "pass:$PASSWORD" -out code.pfx
)";

} // namespace

Certificates::Certificates()
{
    std::string script = kMaking;
    script.replace(script.find('@'), 1, folder_.Path());
    const ProgramRun run = RunProgram({"/bin/sh", "-c", script}, {{"PASSWORD", kPassword}});
    EXPECT_EQ(run.exitCode, 0) << run.err;
}

const Certificates& Certificates::Shared()
{
    static const Certificates certificates;
    return certificates;
}

} // namespace quillon::test
