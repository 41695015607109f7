#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "shell/servizi/Controllo.h"

namespace kelvo {

/// Options of which at most one is chosen. Positions count from 0, -1 is none.
class GruppoOpzioni final : public Controllo {
public:
    struct Opzione {
        std::string nome;  ///< name of the option's own button
        std::string testo;
        bool abilitata = true;
        bool visibile = true;
        friend bool operator==(const Opzione&, const Opzione&) = default;
    };
    GruppoOpzioni(std::string nome, std::vector<Opzione> opzioni, int scelta = -1);
    const std::vector<Opzione>& opzioni() const { return opzioni_; }
    /// The option at a position; fault 9 outside the group.
    const Opzione& opzione(int indice) const;
    void abilita(int indice, bool valore);
    void mostra(int indice, bool valore);
    void testo(int indice, const std::string& valore);

    int scelta() const { return scelta_; }
    /// Chooses in the program's stead, also a closed option; -1 for none. Fault 9 outside the group.
    void scelta(int indice);
    /// The user chose another option; gets its position.
    std::function<void(int)> alCambio;

    /// The user clicks an option; nothing happens on a closed, a hidden or the chosen one, nor outside the group.
    void clicca(int indice);
    /// The user goes on to the next (or previous) open option, round the group.
    void sposta(bool avanti);
    bool prendeFuoco() const override;

private:
    bool libera(int indice) const;
    Opzione& cerca(int indice);
    std::vector<Opzione> opzioni_;
    int scelta_ = -1;
};

/// Lines of text of which at most one is chosen. Positions count from 0, -1 is none.
class Elenco final : public Controllo {
public:
    explicit Elenco(std::string nome) : Controllo(std::move(nome)) {}
    const std::vector<std::string>& voci() const { return voci_; }
    /// Puts other lines there; the choice stays where it is if there still is such a line, else there is none.
    void voci(const std::vector<std::string>& valori);
    int scelta() const { return scelta_; }
    /// Chooses in the program's stead; -1 for none. Fault 9 outside the list.
    void scelta(int indice);
    /// The user chose another line; gets its position.
    std::function<void(int)> alCambio;

    /// The user chooses a line; nothing happens on the chosen one or outside the list.
    void scegli(int indice);
    bool prendeFuoco() const override { return raggiungibile(); }

private:
    std::vector<std::string> voci_;
    int scelta_ = -1;
};

/// Lines of text that can be ticked one by one; what a tick does to the others is the owner's to say.
class ElencoSpunte final : public Controllo {
public:
    struct Voce {
        std::string testo;
        bool spuntata = false;
        friend bool operator==(const Voce&, const Voce&) = default;
    };
    explicit ElencoSpunte(std::string nome) : Controllo(std::move(nome)) {}
    const std::vector<Voce>& voci() const { return voci_; }
    /// Puts other lines there, none of them ticked.
    void voci(const std::vector<std::string>& testi);
    /// Fault 9 outside the list.
    bool spuntata(int indice) const;
    void spunta(int indice, bool valore);
    /// Unticks every line.
    void azzera();
    int quanteSpuntate() const;
    /// Position of the first ticked line; -1 if there is none.
    int primaSpuntata() const;
    /// The user ticked or unticked a line; gets its position.
    std::function<void(int)> alClic;

    /// The user clicks a line; nothing happens outside the list.
    void clicca(int indice);
    bool prendeFuoco() const override { return raggiungibile(); }

private:
    std::vector<Voce> voci_;
};

/// A whole number that is slid between two limits, by steps from the lower one.
class Scorrimento final : public Controllo {
public:
    /// Limits the wrong way round are one limit, the lower; a step below 1 is 1.
    Scorrimento(std::string nome, int minimo, int massimo, int passo = 1);
    int minimo() const { return minimo_; }
    int massimo() const { return massimo_; }
    int passo() const { return passo_; }
    int valore() const { return valore_; }
    /// The nearest step between the limits; of two equally near the upper one.
    void valore(int nuovo);
    /// Moves the limits; the value stays as near as it can.
    void limiti(int minimo, int massimo);
    /// The user slid to another value; gets it.
    std::function<void(int)> alCambio;

    /// The user slides; the value is brought to a step between the limits.
    void imposta(int nuovo);
    bool prendeFuoco() const override { return raggiungibile(); }

private:
    int ammesso(int valore) const;
    int minimo_;
    int massimo_;
    int passo_;
    int valore_;
};

/// Tabs, one of which is in view. Positions count from 0.
class Schede final : public Controllo {
public:
    struct Scheda {
        std::string titolo;
        bool abilitata = true;
        std::optional<int> conteggio{};  ///< shown before the title
        std::string icona{};             ///< key of its picture; empty for none
        friend bool operator==(const Scheda&, const Scheda&) = default;
    };
    Schede(std::string nome, const std::vector<std::string>& titoli);
    const std::vector<Scheda>& schede() const { return schede_; }
    /// The tab at a position; fault 9 outside.
    const Scheda& scheda(int indice) const;
    /// What its tab reads: the title, behind "[n] " where it has a count.
    std::string testo(int indice) const;
    void titolo(int indice, const std::string& valore);
    void conteggio(int indice, std::optional<int> valore);
    void icona(int indice, const std::string& valore);
    void abilita(int indice, bool valore);

    int corrente() const { return corrente_; }
    /// Brings a tab into view in the program's stead, also a closed one. Fault 9 outside.
    void corrente(int indice);
    /// The user brought another tab into view; gets its position.
    std::function<void(int)> alCambio;

    /// The user chooses a tab; nothing happens on a closed one, the one in view or outside.
    void scegli(int indice);
    /// The user goes on to the next (or previous) open tab, round all of them.
    void sposta(bool avanti);
    bool prendeFuoco() const override { return raggiungibile(); }

private:
    Scheda& cerca(int indice);
    std::vector<Scheda> schede_;
    int corrente_ = 0;
};

/// A field that shows a colour.
class CampioneColore final : public Controllo {
public:
    explicit CampioneColore(std::string nome, Colore colore = colori::bianco)
        : Controllo(std::move(nome)), colore_(colore) {}
    Colore colore() const { return colore_; }
    void colore(Colore valore) { cambia(colore_, valore); }

private:
    Colore colore_;
};

}  // namespace kelvo
