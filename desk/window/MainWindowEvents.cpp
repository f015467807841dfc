// What the desk's window makes of keys, of files dropped on it and of being left.
#include "desk/window/MainWindow.h"

namespace Desk {

// A character typed in the drawing takes a proposal or begins to narrow the texts.
void MainWindow::keyPressEvent(QKeyEvent* event)
{
    if (m_search->hasFocus()) {  // what it has no use for is for nobody else
        if (event->key() == Qt::Key_Escape) {
            m_floor->setFocus();
        }
        return;
    }
    if (m_tools->TakeKey(*event)) {
        return;
    }
    const QString text = event->text();
    const bool plain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
    if (plain && text == QLatin1String(" ")) {
        m_selection->GoOn();
    } else if (Chosen() && plain && !text.isEmpty() && text.front().isPrint()) {
        m_docks->StartTyping(text);
    } else if (Chosen() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        m_docks->StartTyping();
    } else if (event->key() == Qt::Key_Escape && m_floor->IsPointing()) {
        m_openTexts->EndPointing();
    } else if (event->key() == Qt::Key_Escape) {
        if (!event->isAutoRepeat()) {  // the key may still be down from leaving a panel
            Choose(std::nullopt);
        }
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    event->setAccepted(!ProjectFiles::Dragged(*event->mimeData()).isEmpty());
}

void MainWindow::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    m_files->OpenSoon(ProjectFiles::Dragged(*event->mimeData()));
}

// Back from another program, which may have written the file.
void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        QMetaObject::invokeMethod(m_files, &ProjectFiles::LookAtFile, Qt::QueuedConnection);
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_files->MayLeave()) {
        event->ignore();
        return;
    }
    m_panels.Close();
    m_document.DropRecoveryCopy();
    m_settings.setValue("geometry", saveGeometry());
    m_settings.setValue("state", saveState());
    event->accept();
}

}  // namespace Desk
