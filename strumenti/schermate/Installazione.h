#pragma once

#include <QtCore/QTemporaryDir>
#include <string>
#include <vector>

namespace kelvo::schermate {

/// A copy of the installation in a folder of its own, removed at the end: settings and logs are written there, so that
/// the one that is copied stays as it is. The folders keep the names that paths are cut by.
class Installazione {
public:
    /// `cartella` is the program's folder, with the project folder beside it. Raises std::filesystem::filesystem_error
    /// where it cannot be read.
    explicit Installazione(const std::string& cartella);

    std::string programma() const;
    std::string lavoro() const;
    std::string recupero() const;
    /// The example projects, in order of their names.
    std::vector<std::string> esempi() const;

private:
    QTemporaryDir radice_;
};

}  // namespace kelvo::schermate
