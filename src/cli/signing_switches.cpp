#include "cli/signing_switches.h"

#include "platform/run_error.h"
#include "platform/whole_file.h"

#include <cstdlib>

namespace quillon::cli {

namespace {

constexpr const char* kPasswordVariable = "QUILLON_SIGN_PASSWORD";
constexpr std::string_view kNoTimeStamp = "none";

/// A path, or the address of something in a token, which is taken as it is.
Text FileOrAddress(const CallContext& context, const std::string& option)
{
    const Text value = context.arguments.Value(option).value_or("");
    return value.empty() || value.starts_with("pkcs11:") ? value : context.Path(value);
}

/// The first line of the file.
Text PasswordIn(const CallContext& context, const Text& path)
{
    try {
        const std::string bytes = ReadWholeFile(context.host.files, path);
        return bytes.substr(0, bytes.find_first_of("\r\n"));
    } catch (const RunError& error) {
        throw CallFailure{FailureText(error, path), Exit::Unreadable};
    }
}

std::optional<Text> Password(const CallContext& context)
{
    if (const auto file = context.arguments.Value("--sign-password-file"))
        return PasswordIn(context, context.Path(*file));
    const char* const variable = std::getenv(kPasswordVariable);
    return variable ? std::optional<Text>(variable) : std::nullopt;
}

} // namespace

SigningChoices ReadSigningSwitches(const CallContext& context)
{
    SigningChoices choices;
    choices.certificate = FileOrAddress(context, "--sign-cert");
    choices.key = FileOrAddress(context, "--sign-key");
    if (const auto module = context.arguments.Value("--sign-module"))
        choices.module = context.Path(*module);
    if (!choices.certificate.empty())
        choices.wish = SigningChoices::SigningMode::Sign;
    if (context.arguments.Has("--no-sign")) {
        if (choices.wish == SigningChoices::SigningMode::Sign)
            throw UsageError{"--sign-cert och --no-sign utesluter varandra."};
        choices.wish = SigningChoices::SigningMode::DoNotSign;
        return choices;
    }
    choices.password = Password(context);
    if (const auto address = context.arguments.Value("--timestamp"))
        choices.timeStamp = *address == kNoTimeStamp ? "" : *address;
    return choices;
}

} // namespace quillon::cli
