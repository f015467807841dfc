// HelpWindow: the keys, what colours and signs mean, the version and the licences.
#pragma once

#include "desk/Toolkit.h"

namespace Desk {

// Beside the window that it helps with, which can be used meanwhile. Its texts follow the language and the
// keys those of the window's menus.
class HelpWindow : public QDialog {
    Q_OBJECT

public:
    explicit HelpWindow(QMainWindow& window);

    // Comes to the front at its beginning, or at the version and the licences.
    void Start() { ShowAt(QString()); }
    void StartAtVersion() { ShowAt(QStringLiteral("version")); }

protected:
    void changeEvent(QEvent* event) override;

private:
    void ShowAt(const QString& anchor);
    void Fill();
    [[nodiscard]] QString OfMenus() const;

    QMainWindow& m_window;
    QTextBrowser* m_text;
    QPushButton* m_close;
};

}  // namespace Desk
