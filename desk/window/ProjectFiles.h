// ProjectFiles: opening, saving and leaving a project or a drawing; nothing unsaved is lost without a
// question.
#pragma once

#include <functional>

#include "desk/Toolkit.h"
#include "desk/window/Document.h"

namespace Desk {

class ProjectFiles : public QObject {
    Q_OBJECT

public:
    // Asks over the window. endEdit puts what an open editor holds into the document; it answers false
    // when that was refused, and then nothing is done. The menu gets the files that were used last.
    ProjectFiles(Document& document, QWidget& window, QMenu& recent, std::function<bool()> endEdit);

    // Opens a project file or a drawing, the sample for an empty name. False when it was not opened, and
    // why was told.
    bool Open(const QString& file);
    void OpenSample() { Open(QString()); }
    void AskOpen();
    // The one file that is dragged over the window, empty for anything else.
    [[nodiscard]] static QString Dragged(const QMimeData& data);
    // After the event in hand: the program that a dropped file comes from waits for its end.
    void OpenSoon(const QString& file);
    // Offers what a session that broke off left, the latest first; true when the person took one.
    bool OfferLostWork();

    bool Save();
    bool SaveUnderNewName();
    // Asks about unsaved changes; false when the person wants to stay.
    bool MayLeave();
    // Asks when another program has written the file, once for each such content; takes the file over when
    // the other desk that had it open is gone.
    void LookAtFile();

signals:
    void Saved(const QString& file);
    void Said(const QString& text);  // for the status bar

private:
    enum class Other { Reload, KeepMine, SaveAs, Cancel };
    bool SaveTo(const QString& file);
    bool OpenAnyhow(const QString& file);
    Other AskOther(bool isSaving);
    void CompareWithFile();
    void NoteRecent();
    void FillRecent();

    Document& m_document;
    QWidget& m_window;
    QMenu& m_recent;
    std::function<bool()> m_endEdit;
    QSettings m_settings;
    QByteArray m_asked;  // the file's content that was asked about last
};

}  // namespace Desk
