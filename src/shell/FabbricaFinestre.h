#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "shell/servizi/Finestra.h"

namespace kelvo {

/// Makes a window of the work area, or one over it.
using CreatoreFinestra = std::function<std::unique_ptr<Finestra>(const Contorno&)>;

/// The windows by their names. A window is made when it is first asked for and lives until the project that it was
/// made for goes.
class FabbricaFinestre {
public:
    /// Registers a window.
    void registra(const std::string& nome, CreatoreFinestra creatore) { creatori_[nome] = std::move(creatore); }
    bool conosce(std::string_view nome) const { return creatori_.find(nome) != creatori_.end(); }
    /// Names of all registered windows, in order.
    std::vector<std::string> nomi() const;

    /// The window of a name, made if it does not live. Fault 9 for a name that is not registered.
    Finestra& finestra(std::string_view nome, const Contorno& contorno);
    /// The window of a name if it lives, else null.
    Finestra* viva(std::string_view nome) const;
    std::size_t quanteVive() const { return vive_.size(); }
    /// Destroys one window.
    void distruggi(std::string_view nome);
    /// Destroys all windows.
    void distruggi();

    /// Told each window that was just made, and each that is about to go; may be empty.
    std::function<void(Finestra&)> allaNascita;
    std::function<void(Finestra&)> allaFine;

private:
    std::map<std::string, CreatoreFinestra, std::less<>> creatori_;
    std::map<std::string, std::unique_ptr<Finestra>, std::less<>> vive_;
};

}  // namespace kelvo
