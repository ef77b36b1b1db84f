#include "cli/arguments.h"

#include "helpers/product.h"

#include <algorithm>
#include <stdexcept>

namespace quillon::cli {

namespace {

constexpr std::size_t kHelpColumn = 28;

const Option* FindOption(const Call& call, const std::string& name)
{
    const auto found = std::ranges::find_if(
        call.options, [&](const Option& option) { return option.name == name; });
    return found == call.options.end() ? nullptr : &*found;
}

bool IsOneOf(std::string_view words, std::string_view word)
{
    while (!words.empty()) {
        const std::size_t end = words.find('|');
        if (words.substr(0, end) == word)
            return true;
        words.remove_prefix(end == std::string_view::npos ? words.size() : end + 1);
    }
    return false;
}

class ArgumentReader {
public:
    ArgumentReader(const std::vector<std::string>& args, std::span<const Call> calls)
        : args_(args), calls_(calls)
    {
    }

    Arguments Read()
    {
        if (args_.empty())
            throw UsageError{"Ange vad som ska göras."};
        TakeCall();
        bool optionsEnd = false;
        for (next_ = 1; next_ < args_.size(); ++next_) {
            const std::string& word = args_[next_];
            if (!optionsEnd && word == "--")
                optionsEnd = true;
            else if (!optionsEnd && word.starts_with("-") && word.size() > 1)
                TakeOption(word);
            else
                read_.operands.push_back(word);
        }
        CheckOperands();
        CheckRequired();
        return std::move(read_);
    }

private:
    void TakeCall()
    {
        const auto found =
            std::ranges::find_if(calls_, [&](const Call& call) { return call.name == args_[0]; });
        if (found == calls_.end())
            throw UsageError{"'" + args_[0] + "' är inget kommando."};
        read_.call = &*found;
    }

    /// "--to FOLDER" and "--to=FOLDER" are the same.
    void TakeOption(const std::string& word)
    {
        const std::size_t sign = word.find('=');
        const std::string name = word.substr(0, sign);
        const Option* option = FindOption(*read_.call, name);
        if (!option)
            throw UsageError{"Kommandot " + Text(read_.call->name) + " har ingen växel '" + name +
                             "'."};
        if (read_.Has(name))
            throw UsageError{"Växeln " + name + " är angiven två gånger."};

        std::string value = sign == std::string::npos ? "" : word.substr(sign + 1);
        if (!option->value && sign != std::string::npos)
            throw UsageError{"Växeln " + name + " har inget värde."};
        if (option->value && sign == std::string::npos) {
            if (next_ + 1 == args_.size())
                throw UsageError{"Växeln " + name + " saknar sitt värde (" + option->value + ")."};
            value = args_[++next_];
        }
        if (option->words && !IsOneOf(option->words, value))
            throw UsageError{"Växeln " + name + " kan ej vara '" + value + "'; välj " +
                             ReplaceAll(option->words, "|", ", ") + "."};
        read_.options[name] = value;
    }

    void CheckOperands() const
    {
        const auto& wanted = read_.call->operands;
        if (read_.operands.size() < wanted.size())
            throw UsageError{Text("Kommandot ") + read_.call->name + " saknar " +
                             wanted[read_.operands.size()] + "."};
        const bool takesMore = !wanted.empty() && Text(wanted.back()).ends_with("...");
        if (read_.operands.size() > wanted.size() && !takesMore)
            throw UsageError{"'" + read_.operands[wanted.size()] + "' är en uppgift för mycket."};
    }

    void CheckRequired() const
    {
        for (const Option& option : read_.call->options)
            if (option.need == Need::Required && !read_.Has(option.name))
                throw UsageError{Text("Kommandot ") + read_.call->name + " saknar växeln " +
                                 option.name + "."};
    }

    const std::vector<std::string>& args_;
    std::span<const Call> calls_;
    std::size_t next_ = 0;
    Arguments read_;
};

void AddHelpLine(Text& help, Text left, const char* right)
{
    if (CharacterCount(left) + 2 > kHelpColumn)
        left.append(1, '\n').append(kHelpColumn, ' ');
    else
        left.append(kHelpColumn - CharacterCount(left), ' ');
    help += left + right + "\n";
}

} // namespace

bool Arguments::Declares(std::string_view option) const
{
    return std::ranges::any_of(call->options,
                               [&](const Option& declared) { return declared.name == option; });
}

bool Arguments::Has(const std::string& option) const
{
    if (!Declares(option))
        throw std::logic_error(Text(call->name) + " does not declare " + option);
    return options.count(option) > 0;
}

std::optional<std::string> Arguments::Value(const std::string& option) const
{
    return Has(option) ? std::optional(options.at(option)) : std::nullopt;
}

const std::string& Arguments::Required(const std::string& option) const
{
    if (!Has(option))
        throw std::logic_error(Text(call->name) + " does not require " + option);
    return options.at(option);
}

Arguments ReadArguments(const std::vector<std::string>& args, std::span<const Call> calls)
{
    return ArgumentReader(args, calls).Read();
}

Text HelpText(std::span<const Call> calls)
{
    Text help = Text(kProductName) + " " + Text(kToolVersion) + ", kommandoradsprogrammet\n";
    for (const Call& call : calls) {
        help += "\nquillonc " + Text(call.name);
        for (const char* operand : call.operands)
            help += Text(" ") + operand;
        bool hasOptional = false;
        for (const Option& option : call.options)
            if (option.need == Need::Required)
                help += Text(" ") + option.name + (option.value ? Text(" ") + option.value : "");
            else
                hasOptional = true;
        help += Text(hasOptional ? " [växlar]" : "") + "\n  " + call.help + "\n";
        for (const Option& option : call.options) {
            const Text value = option.words ? option.words : option.value ? option.value : "";
            AddHelpLine(help, Text("    ") + option.name + (value.empty() ? "" : " " + value),
                        option.help);
        }
    }
    help += "\nquillonc --help, quillonc --version\n"
            "\n"
            "Sökvägar är den här datorns egna eller Windows-sökvägar (C:\\Data\\a.qnp).\n"
            "Slutkoder: 0 klart; 1 stoppat av en kontroll, en fråga eller ett fel; 2 felaktigt\n"
            "anrop; 3 en fil som ej kan läsas eller ej är ett projekt.\n";
    return help;
}

} // namespace quillon::cli
