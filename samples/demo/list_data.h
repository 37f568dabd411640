// The rows that come from files.
#pragma once

#include "hosting/text_rows.h"

#include <functional>
#include <string>

namespace vellora::samples {

struct ListData {
    TextRows time_zones;
    TextRows characters;
};

/// What cannot be read stays empty; `complain` is told why.
ListData read_list_data(const std::function<void(const std::wstring& problem)>& complain);

} // namespace vellora::samples
