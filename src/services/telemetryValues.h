// What a usage report says of the program, and where it would go.
#pragma once

#include <string>
#include <string_view>

namespace telemetryValues {

// A name that no name server ever knows: nothing can be sent there.
inline constexpr char serviceAddress[] = "reports.lunaria.invalid";
inline constexpr char productId[] = "4501782936";
inline constexpr char productVersion[] = "5.4.1";

static_assert(std::string_view(serviceAddress).size() == 23);
static_assert(std::string_view(productId).size() == 10);

// The moment of the build, as "Mmm dd yyyy  hh:mm:ss".
std::string buildStamp();

}  // namespace telemetryValues
