#include "runtime/texts/failure_reason.h"

#include "formats/package_files.h"
#include "helpers/number_text.h"

namespace quillon {

namespace {

// The words for a failure that names its file; `Count` where there are none but its number.
Message MessageOf(int number)
{
    switch (number) {
    case ErrorNumber::kFileNotFound:
        return Message::ReasonFileNotFound;
    case ErrorNumber::kPathNotFound:
        return Message::ReasonFolderNotFound;
    case ErrorNumber::kPermissionDenied:
        return Message::ReasonAccessDenied;
    case ErrorNumber::kDeviceIo:
    case ErrorNumber::kPathFileAccess:
        return Message::ReasonNoAccess;
    case ErrorNumber::kDiskFull:
        return Message::ReasonDiskFull;
    case ErrorNumber::kFileInUse:
        return Message::ReasonInUse;
    default:
        return Message::Count;
    }
}

} // namespace

Reason ReasonOf(const RunError& error)
{
    if (error.Path().empty())
        return {Message::ReasonErrorNumber, NumberText(error.Number())};
    const Message message = MessageOf(error.Number());
    if (message == Message::Count)
        return {Message::ReasonErrorAt, NumberText(error.Number()), error.Path()};
    return {message, error.Path()};
}

Reason ReasonOf(const ZipError& error)
{
    switch (error.Reason()) {
    case ZipError::Kind::NotAnArchive:
        return {Message::PackageNotArchive, kFileContainerName};
    case ZipError::Kind::Unsupported:
        return {Message::PackageUnknownPacking, kFileContainerName};
    case ZipError::Kind::WrongPassword:
        return {Message::WrongPassword};
    case ZipError::Kind::Damaged:
        break;
    }
    return {Message::PackageFileDamaged, kFileContainerName};
}

std::optional<Reason> ReasonOf(const std::exception& error)
{
    if (const auto* machine = dynamic_cast<const RunError*>(&error))
        return ReasonOf(*machine);
    if (const auto* archive = dynamic_cast<const ZipError*>(&error))
        return ReasonOf(*archive);
    // No reason is given where the user has cancelled.
    if (const auto* setup = dynamic_cast<const SetupFailure*>(&error))
        return *setup->what() == 0 ? std::optional(Reason{Message::ReasonCancelled}) : std::nullopt;
    return Reason{Message::ReasonUnexpected};
}

Text FailureReason(const std::exception& error, const LanguageTexts& texts)
{
    const auto reason = ReasonOf(error);
    return reason ? texts(*reason) : error.what();
}

SetupFailure FailureOfSetup(const std::exception& error, const LanguageTexts& texts)
{
    if (const auto* setup = dynamic_cast<const SetupFailure*>(&error))
        return *setup;
    if (const auto* archive = dynamic_cast<const ZipError*>(&error)) {
        if (archive->Reason() == ZipError::Kind::WrongPassword)
            return {ExitCode::Failed, texts[Message::WrongPassword]};
        return DamagedPackage(texts, ReasonOf(*archive));
    }
    const auto* machine = dynamic_cast<const RunError*>(&error);
    if (machine != nullptr && machine->Number() == ErrorNumber::kDiskFull)
        return {ExitCode::DiskFull, texts(Message::DiskFull, machine->Path())};
    if (machine != nullptr && machine->Number() == ErrorNumber::kFileInUse)
        return {ExitCode::FileInUse, texts(Message::FileInUse, machine->Path())};
    return {ExitCode::Failed, texts(Message::Failed, FailureReason(error, texts))};
}

SetupFailure DamagedPackage(const LanguageTexts& texts, const Reason& reason)
{
    return {ExitCode::DamagedPackage, texts(Message::Damaged, texts(reason))};
}

} // namespace quillon
