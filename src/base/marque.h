#pragma once

#include <string_view>

/// The UTF-8 byte-order mark, which a file may begin with.
inline constexpr std::string_view marque_utf8 = "\xEF\xBB\xBF";
