#include "platform/windows/testi.h"

#include <algorithm>
#include <array>
#include <system_error>

#include "base/file.h"
#include "platform/windows/intestazioni.h"

namespace kelvo {

namespace {

/// Room is left for a short name below a folder.
constexpr std::size_t massimoSenzaPrefisso = 240;
constexpr std::wstring_view prefissoLungo = L"\\\\?\\";
constexpr std::wstring_view prefissoRete = L"\\\\?\\UNC\\";

struct VoceErrore {
    unsigned long numero;
    std::errc significato;
};

constexpr std::array vociErrore{
    VoceErrore{ERROR_FILE_NOT_FOUND, std::errc::no_such_file_or_directory},
    VoceErrore{ERROR_PATH_NOT_FOUND, std::errc::no_such_file_or_directory},
    VoceErrore{ERROR_INVALID_DRIVE, std::errc::no_such_file_or_directory},
    VoceErrore{ERROR_BAD_NETPATH, std::errc::no_such_file_or_directory},
    VoceErrore{ERROR_BAD_NET_NAME, std::errc::no_such_file_or_directory},
    VoceErrore{ERROR_INVALID_NAME, std::errc::no_such_file_or_directory},
    VoceErrore{ERROR_DIRECTORY, std::errc::not_a_directory},
    VoceErrore{ERROR_ACCESS_DENIED, std::errc::permission_denied},
    VoceErrore{ERROR_WRITE_PROTECT, std::errc::read_only_file_system},
    VoceErrore{ERROR_FILE_EXISTS, std::errc::file_exists},
    VoceErrore{ERROR_ALREADY_EXISTS, std::errc::file_exists},
    VoceErrore{ERROR_HANDLE_DISK_FULL, std::errc::no_space_on_device},
    VoceErrore{ERROR_DISK_FULL, std::errc::no_space_on_device},
    VoceErrore{ERROR_FILE_TOO_LARGE, std::errc::file_too_large},
    VoceErrore{ERROR_FILENAME_EXCED_RANGE, std::errc::filename_too_long},
    VoceErrore{ERROR_CANT_RESOLVE_FILENAME, std::errc::too_many_symbolic_link_levels},
};

bool inizia(std::wstring_view testo, std::wstring_view inizio) {
    return testo.substr(0, inizio.size()) == inizio;
}

/// The path from the root on, its steps "." and ".." taken; the path itself where the system knows no such form.
std::wstring intero(const std::wstring& percorso) {
    std::wstring trovato(GetFullPathNameW(percorso.c_str(), 0, nullptr, nullptr), L'\0');
    const DWORD lungo = GetFullPathNameW(percorso.c_str(), static_cast<DWORD>(trovato.size()), trovato.data(), nullptr);
    if (lungo == 0 || lungo >= trovato.size()) {
        return percorso;
    }
    trovato.resize(lungo);
    return trovato;
}

}  // namespace

std::wstring testoLargo(std::string_view testo) {
    const auto byte = static_cast<int>(testo.size());
    std::wstring largo(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, testo.data(), byte, nullptr, 0)),
                       L'\0');
    MultiByteToWideChar(CP_UTF8, 0, testo.data(), byte, largo.data(), static_cast<int>(largo.size()));
    return largo;
}

std::string testoStretto(std::wstring_view largo) {
    const auto lungo = static_cast<int>(largo.size());
    std::string testo(
        static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, largo.data(), lungo, nullptr, 0, nullptr, nullptr)),
        '\0');
    WideCharToMultiByte(CP_UTF8, 0, largo.data(), lungo, testo.data(), static_cast<int>(testo.size()), nullptr,
                        nullptr);
    return testo;
}

std::wstring percorsoLargo(std::string_view percorso) {
    const std::wstring largo = testoLargo(percorso);
    if (inizia(largo, prefissoLungo) || inizia(largo, L"\\\\.\\")) {
        return largo;
    }
    std::wstring pieno = intero(largo);
    if (pieno.size() < massimoSenzaPrefisso) {
        return pieno;
    }
    return inizia(pieno, L"\\\\") ? std::wstring(prefissoRete) + pieno.substr(2) : std::wstring(prefissoLungo) + pieno;
}

std::string paroleErroreWindows(unsigned long numero) {
    if (numero == ERROR_SHARING_VIOLATION || numero == ERROR_LOCK_VIOLATION || numero == ERROR_USER_MAPPED_FILE) {
        return "il file è in uso in un altro programma";
    }
    const auto* const voce = std::find_if(vociErrore.begin(), vociErrore.end(),
                                          [numero](const VoceErrore& altra) { return altra.numero == numero; });
    return paroleErrore(voce != vociErrore.end() ? std::make_error_code(voce->significato)
                                                 : std::error_code(static_cast<int>(numero), std::system_category()));
}

}  // namespace kelvo
