// ImportExport: a project made anew, of a drawing or of texts; and given away as a drawing, a plan or on
// paper.
#pragma once

#include "desk/Toolkit.h"
#include "desk/reading/Annotation.h"
#include "desk/window/ProjectFiles.h"

namespace Desk {

class ImportExport : public QObject {
    Q_OBJECT

public:
    // Asks over the window. What is replaced by a new project, the files ask about.
    ImportExport(Document& document, ProjectFiles& files, QWidget& window);

    void AskNew();
    void AskImport();
    void AskExport();
    void Print();

    // A project without a file made of a drawing or of a file of texts, in UTF-8 or GBK. False when none
    // was made, and why was told.
    bool Import(const QString& file, const Choices& choices);
    // The name's ending says what is written; the scale 1:N is a plan's.
    bool Export(const QString& file, double scale);

signals:
    void Said(const QString& text);  // for the status bar

private:
    [[nodiscard]] std::optional<Backdrop> Behind() const;

    Document& m_document;
    ProjectFiles& m_files;
    QWidget& m_window;
};

}  // namespace Desk
