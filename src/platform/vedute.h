#pragma once

#include <algorithm>
#include <exception>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/guasto.h"
#include "base/testo.h"

namespace kelvo {

/// What several views of one registry tell, asked one after the other. What one of them gives counts, even where
/// another one cannot be read; where none gives anything, the first refusal is raised.
template <class Vedute>
class LetturaVedute {
public:
    explicit LetturaVedute(const Vedute& vedute) : vedute_(vedute) {}

    /// The names of all views, in the order in which they are found; those that differ in case alone are one.
    /// `aggiungi(view, names)` appends those of a view; what it has appended before a fault counts.
    template <class Aggiungi>
    std::vector<std::string> nomi(Aggiungi aggiungi) const {
        std::vector<std::string> tutti;
        std::exception_ptr rifiuto;
        for (const auto veduta : vedute_) {
            std::vector<std::string> suoi;
            prova(rifiuto, [&] { aggiungi(veduta, suoi); });
            for (std::string& nome : suoi) {
                const auto uguale = [chiave = maiuscoleAscii(nome)](const std::string& altro) {
                    return maiuscoleAscii(altro) == chiave;
                };
                if (std::none_of(tutti.begin(), tutti.end(), uguale)) {
                    tutti.push_back(std::move(nome));
                }
            }
        }
        if (tutti.empty() && rifiuto) {
            std::rethrow_exception(rifiuto);
        }
        return tutti;
    }

    /// The text of the first view that has one; empty for none. `leggi(view)` answers it, or nothing.
    template <class Leggi>
    std::string valore(Leggi leggi) const {
        std::exception_ptr rifiuto;
        for (const auto veduta : vedute_) {
            std::optional<std::string> testo;
            prova(rifiuto, [&] { testo = leggi(veduta); });
            if (testo) {
                return *testo;
            }
        }
        if (rifiuto) {
            std::rethrow_exception(rifiuto);
        }
        return {};
    }

private:
    /// Keeps the first refusal back.
    template <class Lettura>
    static void prova(std::exception_ptr& rifiuto, Lettura lettura) {
        try {
            lettura();
        } catch (const Guasto&) {
            if (!rifiuto) {
                rifiuto = std::current_exception();
            }
        }
    }

    const Vedute& vedute_;
};

}  // namespace kelvo
