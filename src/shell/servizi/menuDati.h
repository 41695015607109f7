#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/servizi/Finestra.h"
#include "shell/servizi/Grafico.h"
#include "shell/servizi/Griglia.h"
#include "shell/servizi/MenuChiavi.h"
#include "shell/servizi/disegnatore.h"

namespace kelvo {

/// Pixels of a saved or copied picture to one logical pixel: it stays sharp on paper.
inline constexpr double scalaImmagineDati = 2.0;

/// The context menu of a table, a chart or a plan: the entries that it has of its own, behind them those that copy and
/// save it, at last those that put its window on paper.
class MenuDati {
public:
    static constexpr const char* tastoStampa = "Ctrl+Shift+P";

    /// The window that it stands in, whose focus is left before an entry runs.
    MenuDati(Finestra& finestra, const Contorno& contorno, const std::string& nome);
    MenuDati(const MenuDati&) = delete;
    MenuDati& operator=(const MenuDati&) = delete;
    virtual ~MenuDati() = default;

    /// The menu as it is now.
    MenuChiavi& menu();

protected:
    struct Voce {
        const char* chiave;
        const char* testo;  ///< "-" for a separator
        const char* scorciatoia;
    };
    virtual MenuChiavi* proprio() const = 0;
    virtual std::vector<Voce> voci() const = 0;
    /// Why an entry is closed; empty where it is open.
    virtual std::string chiusa(std::string_view chiave) const = 0;
    virtual void esegui(std::string_view chiave) = 0;

    /// Asks for a file and writes what `dati` makes.
    void salva(std::string_view estensione, const std::function<EsitoDisegno()>& dati);
    void segnala(const std::string& testo);
    const Contorno& contorno() const { return contorno_; }

private:
    void aggiungiProprie(const MenuChiavi& menu, const std::string& da, const std::string& a);
    void aggiungi(const Voce& voce, const std::string& perche);
    void aggiungiStampa();
    void premuta(const std::string& chiave);

    Finestra& finestra_;
    Contorno contorno_;
    MenuChiavi menu_;
};

/// "Copia", "Copia con intestazioni", "Incolla", "Salva come CSV...". Where no cell is selected all of them are copied;
/// nothing is pasted where none of the selected cells may be typed into.
class MenuTabella final : public MenuDati {
public:
    MenuTabella(Finestra& finestra, const Contorno& contorno, Griglia& griglia);

private:
    MenuChiavi* proprio() const override { return griglia_.menuContesto; }
    std::vector<Voce> voci() const override;
    std::string chiusa(std::string_view chiave) const override;
    void esegui(std::string_view chiave) override;
    void copia(bool conIntestazioni);
    bool siIncolla() const;

    Griglia& griglia_;
};

/// "Copia immagine" and the picture as PNG, SVG and PDF, of anything that can be drawn.
class MenuImmagine : public MenuDati {
public:
    using MenuDati::MenuDati;

protected:
    MenuChiavi* proprio() const override { return nullptr; }
    std::vector<Voce> voci() const override;
    std::string chiusa(std::string_view chiave) const override;
    void esegui(std::string_view chiave) override;
    /// Why there is nothing to draw; empty where there is something.
    virtual std::string vuota() const = 0;
    /// The picture. Asked only where there is a painter and something to draw.
    virtual EsitoDisegno disegna(FormatoDisegno formato) const = 0;

private:
    void copia();
};

/// "Copia immagine", the picture as PNG, SVG and PDF, the values as CSV.
class MenuGrafico final : public MenuImmagine {
public:
    MenuGrafico(Finestra& finestra, const Contorno& contorno, Grafico& grafico);

private:
    MenuChiavi* proprio() const override { return grafico_.menuContesto; }
    std::vector<Voce> voci() const override;
    std::string chiusa(std::string_view chiave) const override;
    void esegui(std::string_view chiave) override;
    std::string vuota() const override;
    EsitoDisegno disegna(FormatoDisegno formato) const override;

    Grafico& grafico_;
};

}  // namespace kelvo
