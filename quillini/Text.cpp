#include "quillini/Text.hpp"
#include "quillini/quillini.hpp"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillINI {

std::string_view TrimBlanks(std::string_view Text) {
    constexpr std::string_view blanks = " \t";
    Text.remove_prefix(std::min(Text.find_first_not_of(blanks), Text.size()));
    return Text.substr(0, Text.find_last_not_of(blanks) + 1);
}

std::string_view CommentText(std::string_view Rest) {
    if (Rest.starts_with(' ')) {
        Rest.remove_prefix(1);
    }
    if (Rest.ends_with('\n')) {
        Rest.remove_suffix(1);
    }
    return Rest;
}

std::string EncodeCodePointUtf8(std::uint32_t CodePoint) {
    std::string bytes;
    const auto form = std::ranges::upper_bound(SequenceForms, CodePoint, {}, &SequenceForm::Limit);
    if (CodePoint == 0 || form == SequenceForms.end()) {
        return bytes;
    }
    const std::size_t continuations = form->Length - 1;
    bytes.push_back(static_cast<char>(form->Lead | CodePoint >> 6 * continuations));
    for (std::size_t left = continuations; left > 0; --left) {
        bytes.push_back(static_cast<char>(0x80U | (CodePoint >> 6 * (left - 1) & 0x3FU)));
    }
    return bytes;
}

std::vector<std::string> SplitAny(std::string_view Text, std::string_view Delimiters) {
    std::vector<std::string> pieces;
    std::size_t begin = Text.find_first_not_of(Delimiters);
    while (begin != std::string_view::npos) {
        const std::size_t end = std::min(Text.find_first_of(Delimiters, begin), Text.size());
        pieces.emplace_back(Text.substr(begin, end - begin));
        begin = Text.find_first_not_of(Delimiters, end);
    }
    if (pieces.empty()) {
        pieces.emplace_back(Text);
    }
    return pieces;
}

} // namespace quillINI
