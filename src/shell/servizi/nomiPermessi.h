#pragma once

#include <string_view>

#include "shell/servizi/CustodeCampi.h"

namespace kelvo {

/// Characters that no name may hold that stands in a file's name, in the order in which they are told.
inline constexpr std::string_view caratteriVietati = "\\/:*?\"<>|";

/// The box that tells them.
MessaggioCampo messaggioCaratteriVietati();

/// Check of the name of a leg: one box for each forbidden character that stands in it, one for an empty name.
EsitoUscita controllaNomeRamo(std::string_view nome);

}  // namespace kelvo
