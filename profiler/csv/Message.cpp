// Sentences about a file: choosing the form, filling in the places, keeping their number within reason.
#include "csv/Message.h"

#include <algorithm>
#include <cctype>

namespace csv {

std::string FillIn(const std::string& text, const std::vector<std::string>& arguments) {
    // No format library: a wrong place in a translated text must not make the program stop.
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool place =
            text[i] == '%' && i + 2 < text.size() && text[i + 1] >= '1' && text[i + 1] <= '9' && text[i + 2] == '%';
        if (!place) {
            result += text[i];
            continue;
        }
        const std::size_t index = static_cast<std::size_t>(text[i + 1] - '1');
        if (index < arguments.size())
            result += arguments[index];
        i += 2;
    }
    return result;
}

std::string Text(const Message& message) {
    return Text(message, [](const char* text) { return std::string(text); });
}

std::string Text(const Message& message, const Translator& translate) {
    const bool plural = message.plural != nullptr && message.number != 1;
    return FillIn(translate(plural ? message.plural : message.literal), message.arguments);
}

std::string Excerpt(const std::string& text) {
    constexpr std::size_t kMostCharacters = 40;
    std::size_t characters = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool continuation = (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80;
        if (!continuation && characters++ == kMostCharacters)
            return text.substr(0, i) + "\u2026";
    }
    return text;
}

void MessageList::Add(Message message) {
    auto kind = std::find_if(m_kinds.begin(), m_kinds.end(),
                             [&](const Kind& known) { return std::string_view(known.literal) == message.literal; });
    if (kind == m_kinds.end())
        kind = m_kinds.insert(m_kinds.end(), {message.literal, 0});
    if (++kind->count <= kMostOfOneKind)
        m_messages.push_back(std::move(message));
    else
        ++m_leftOut;
}

std::vector<Message> MessageList::Take() {
    constexpr std::size_t kLast = static_cast<std::size_t>(-1);
    const auto place = [](const Message& message) { return message.line == 0 ? kLast : message.line; };
    std::stable_sort(m_messages.begin(), m_messages.end(),
                     [&](const Message& a, const Message& b) { return place(a) < place(b); });

    if (m_leftOut > 0) {
        m_messages.push_back({Severity::Warning,
                              0,
                              Translatable("%1%: %2% more message like these is not listed."),
                              Translatable("%1%: %2% more messages like these are not listed."),
                              m_leftOut,
                              {m_fileName, std::to_string(m_leftOut)}});
    }
    m_kinds.clear();
    m_leftOut = 0;
    return std::move(m_messages);
}

} // namespace csv
