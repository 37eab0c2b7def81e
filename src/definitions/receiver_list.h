#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vigrel {

// The receivers of a profile, as its text fields hold them: the identities of receiver definitions, separated
// by ";". Items that are no identity are kept as they stand.

std::vector<std::string> ReceiverItems(std::string_view text);
std::string ReceiverText(const std::vector<std::string>& items);
// Nothing for an item that is no identity.
std::optional<std::int16_t> ReceiverIdentity(std::string_view item);

}  // namespace vigrel
