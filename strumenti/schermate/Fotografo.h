#pragma once

#include <QtCore/QString>
#include <QtGui/QPixmap>
#include <filesystem>
#include <functional>
#include <map>
#include <string>

class QWidget;

namespace kelvo::schermate {

/// Writes pictures of widgets into a folder.
class Fotografo {
public:
    /// Makes the folder where it is missing. Raises std::filesystem::filesystem_error where it cannot.
    explicit Fotografo(const std::string& cartella);

    /// Which part of a picture is written.
    enum class Parte { intera, finestra };
    /// Only the pictures named are taken from now on, those of the main window in the part told; `finestra` answers
    /// where the window of its work area stands in it, in logical pixels.
    void solo(std::map<std::string, Parte> elenco, const QWidget& principale, std::function<QRect()> finestra);

    /// Lets all pending work run, then writes "<name>.png"; the picture has the size of the widget in device pixels.
    void scatta(QWidget& oggetto, const std::string& nome);
    /// The same with another widget laid over the first, its corner at `posto`.
    void scatta(QWidget& oggetto, QWidget& sopra, QPoint posto, const std::string& nome);

    int scritte() const { return scritte_; }
    /// Names of the pictures that could not be written.
    const std::string& fallite() const { return fallite_; }

private:
    void scrivi(const QPixmap& immagine, const std::string& nome, const QWidget& oggetto);
    bool voluta(const std::string& nome) const;

    std::filesystem::path cartella_;
    bool tutte_ = true;
    std::map<std::string, Parte> elenco_;
    const QWidget* principale_ = nullptr;
    std::function<QRect()> finestra_;
    int scritte_ = 0;
    std::string fallite_;
};

/// Lets the pending events run, those that these raise included.
void lasciaCorrere();

}  // namespace kelvo::schermate
