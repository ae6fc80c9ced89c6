// What reading a file has to tell the user: plain sentences that name the file and the line.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace csv {

enum class Severity {
    Warning, ///< the file is open; something in it was read in the way that the sentence says
    Error,   ///< the file is not open
};

/// A sentence for the user, kept apart from its arguments so that it is translated only where it is shown.
struct Message {
    Severity severity = Severity::Warning;
    std::size_t line = 0;               ///< 1-based line of the file; 0 when the whole file is meant
    const char* literal = "";           ///< English text with positional places %1%, %2%, ...
    const char* plural = nullptr;       ///< the text for every `number` but 1; null when there is only one form
    std::size_t number = 1;             ///< decides between `literal` and `plural`
    std::vector<std::string> arguments; ///< UTF-8, in the order of the places
};

/// Gives the user's wording of an English text; returns UTF-8 with the places still in it.
using Translator = std::function<std::string(const char* text)>;

/// Marks a text for the message catalogue; it is translated later, by the `Translator`.
constexpr const char* Translatable(const char* text) { return text; }

/// The sentence in English.
std::string Text(const Message& message);

/// The sentence in the translator's language.
std::string Text(const Message& message, const Translator& translate);

/// Replaces the places %1% to %9% by the arguments. A place without an argument stands for nothing; an
/// argument without a place is left out; other percent signs stay.
std::string FillIn(const std::string& text, const std::vector<std::string>& arguments);

/// `text` for a sentence: cut after 40 characters, an ellipsis standing for the rest.
std::string Excerpt(const std::string& text);

/// The messages of one file, in the order of its lines. A file whose every line is odd must not bury the user: of each
/// kind (same literal) the first `kMostOfOneKind` are kept, and one closing message counts the rest.
class MessageList {
public:
    static constexpr std::size_t kMostOfOneKind = 50;

    /// `fileName` is how the sentences call the file: its name without the folder.
    explicit MessageList(std::string fileName) : m_fileName(std::move(fileName)) {}

    const std::string& FileName() const { return m_fileName; }

    void Add(Message message);

    /// Counts messages that were not even made.
    void LeaveOut(std::size_t count) { m_leftOut += count; }

    /// All messages: those about the whole file last, the others by line. Ends the collecting.
    std::vector<Message> Take();

private:
    struct Kind {
        const char* literal;
        std::size_t count;
    };

    std::string m_fileName;
    std::vector<Message> m_messages;
    std::vector<Kind> m_kinds;
    std::size_t m_leftOut = 0;
};

} // namespace csv
