#pragma once

/// Titles of message boxes.
namespace kelvo::titoli {

inline constexpr const char* programma = "KELVO 2014";
inline constexpr const char* attenzione = "KELVO 2014 - Attenzione";
/// Of messages that write the name in small letters.
inline constexpr const char* kelvo = "Kelvo 2014";

}  // namespace kelvo::titoli
