// The report to the support: its questions, the answers to them, and the text file that is made of
// them. Nothing is sent: the user mails the file.
#pragma once

#include "platform/ask.h"
#include "platform/host.h"
#include "project/records.h"

#include <array>
#include <span>

namespace quillon {

inline constexpr const char* kNoAnswer = "---"; // the first choice of every question

/// A question of the wizard. The caption is what the report quotes.
struct BugQuestion {
    int page;
    const char* caption;
    const char* control; // object name of the control with the answer, unique on its page
    std::span<const char* const> choices; // after `kNoAnswer`; none is a free text
};

inline constexpr std::size_t kBugQuestionCount = 11;
/// In the order of the report.
extern const std::array<BugQuestion, kBugQuestionCount> kBugQuestions;

struct BugSystem {
    const char* control;
    const char* caption;
    const char* token; // in the report, with its blanks
};

inline constexpr std::size_t kBugSystemCount = 6;
extern const std::array<BugSystem, kBugSystemCount> kBugSystems;

struct BugReportAnswers {
    std::array<Text, kBugQuestionCount> answers; // by question
    std::array<bool, kBugSystemCount> systems{};
    Text description; // lines end in CR LF
};

// Where the wizard's files lie, below the folder that the tool writes in.
Text DiagnosisFile(const Text& ownFolder);
Text BugReportFolder(const Text& ownFolder);
Text BugReportFile(const Text& ownFolder);

/// True when at least one system is chosen; else a message.
bool HasSystems(const BugReportAnswers& answers, Ask& ask);

/// True when the diagnosis has been made; else a message.
bool HasDiagnosis(const FileSystem& files, const Text& ownFolder, Ask& ask);

/// The whole report as it will be written, for the user to look at first. Throws as
/// `WriteBugReport` does.
Text BugReportText(const BugReportAnswers& answers, const OpenProjectState& state, Host& host,
                   const Text& ownFolder);

/// Writes the report, and the open project as it is in memory beside it; a project that was never
/// saved has no copy. The project stays marked as it was. Throws `RunError`, 62 where the
/// diagnosis has fewer than eight lines.
void WriteBugReport(const BugReportAnswers& answers, Project& project,
                    const OpenProjectState& state, Host& host, Ask& ask, const Text& ownFolder);

} // namespace quillon
