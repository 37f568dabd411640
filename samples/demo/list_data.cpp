#include "list_data.h"

#include "hosting/failure.h"
#include "time_zones.h"
#include "unicode_characters.h"

namespace vellora::samples {

ListData read_list_data(const std::function<void(const std::wstring&)>& complain) {
    const auto read = [&](TextRows (*source)()) {
        try {
            return source();
        } catch (const Failure& failure) {
            complain(failure.message());
            return TextRows();
        }
    };
    return {read(read_time_zones), read(read_unicode_characters)};
}

} // namespace vellora::samples
