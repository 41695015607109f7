#pragma once

#include <vector>

#include "reports/xml.h"

namespace kelvo::ooxml {

/// True for marks that stand between the contents and show nothing: ends of bookmarks, comments, permissions.
bool eMarcatore(pugi::xml_node nodo);
/// True for what tells how its parent looks and is never deleted with its contents ("w:pPr", "w:tcPr", "w:sectPr" of
/// the body, ...).
bool eProprieta(pugi::xml_node nodo);

/// True for a paragraph in which nothing stands but marks.
bool vuoto(pugi::xml_node paragrafo);
/// Moves the marks inside `nodo` in front of it.
void salvaMarcatori(pugi::xml_node nodo);

/// True for what holds blocks and must end in a paragraph: body, cell, header, footnote, text box, ...
bool eContenitore(pugi::xml_node nodo);
/// Makes everything below `radice` valid again after a deletion: containers of blocks end in a paragraph (in front of
/// the body's last settings), tables without rows and emptied content controls go.
void sistemaParte(pugi::xml_node radice);
/// Removes marks whose other end is gone, and the halves of fields.
void sanaCoppie(pugi::xml_node radice);

/// Format of the first run of `contenitore`, else of the mark of its first paragraph; null for neither.
pugi::xml_node formatoDi(pugi::xml_node contenitore);

/// Numbers the captions below `radice`: fields "SEQ label", of either kind, in the order in which they stand. Labels
/// whose fields do more than count are left as they are.
void numeraDidascalie(pugi::xml_node radice);

}  // namespace kelvo::ooxml
