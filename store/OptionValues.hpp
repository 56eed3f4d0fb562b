#pragma once

#include "quillini/quillini.hpp"

#include <cstdint>
#include <string>
#include <string_view>

// Values of an options file. One that is missing, empty or bad gives Default.

std::string GetOptionText(const quillINI::IniDocument &Document, std::string_view Section,
    std::string_view Key, std::string_view Default);

std::int32_t GetOptionInt(const quillINI::IniDocument &Document, std::string_view Section,
    std::string_view Key, std::int32_t Default);

bool GetOptionBool(
    const quillINI::IniDocument &Document, std::string_view Section, std::string_view Key, bool Default);
