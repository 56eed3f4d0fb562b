#include "store/OptionValues.hpp"

#include "store/Words.hpp"

std::string GetOptionText(const quillINI::IniDocument &Document, std::string_view Section,
    std::string_view Key, std::string_view Default) {
    std::string text = quillINI::GetIniValue(Document, Section, Key, "");
    return text.empty() ? std::string(Default) : text;
}

std::int32_t GetOptionInt(const quillINI::IniDocument &Document, std::string_view Section,
    std::string_view Key, std::int32_t Default) {
    std::int32_t number = Default;
    ParseInt32(quillINI::GetIniValue(Document, Section, Key, ""), number);
    return number;
}

bool GetOptionBool(
    const quillINI::IniDocument &Document, std::string_view Section, std::string_view Key, bool Default) {
    return ParseBoolWord(quillINI::GetIniValue(Document, Section, Key, ""), Default);
}
