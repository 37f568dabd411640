// Values of the line protocol as variants, and back.
#pragma once

#include "support/container/failure.h"
#include "support/container/variant.h"
#include "support/form_host/json.h"

#include <vector>
#include <windows.h>

namespace vellora::test {

/// Whole numbers become Longs, others Doubles, lists arrays of Variant, null a missing argument.
/// {"short": 5}, {"single": 1.5}, {"texts": ["a"]}, {"empty": true} and {"font": ["Tahoma", 12]} are typed.
Variant to_variant(const Json& value);
std::vector<Variant> to_variants(const Json& list);

Json to_json(const Variant& value);
Json to_json(const Failure& failure);
/// [left, top, right, bottom]; null for an empty rectangle.
Json to_json(const RECT& rect);
/// From [left, top, width, height].
RECT to_rect(const Json& list);

} // namespace vellora::test
