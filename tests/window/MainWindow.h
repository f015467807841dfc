// The desk on the sample, and what a person does to it.
#pragma once

#include <ostream>

#include <QtTest/QtTest>

#include <gtest/gtest.h>

#include "desk/project/Encoding.h"
#include "desk/project/ProjectFile.h"
#include "desk/window/MainWindow.h"

// Legible where a test fails.
inline void PrintTo(const QString& text, std::ostream* to) { *to << text.toStdString(); }

namespace Desk {

class MainWindowTest : public testing::Test {
protected:
    MainWindowTest()
    {
        QSettings().clear();
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QObject::connect(&asker, &QTimer::timeout, &asker, [this] { AnswerOne(); });
        window.SetLanguage(Language::English);
        window.Files().Open(QString());
        window.resize(1440, 900);  // whatever the screen's size and scale
        window.show();
        QCoreApplication::processEvents();
    }
    ~MainWindowTest() override { window.TheDocument().DropRecoveryCopy(); }

    template <class Widget>
    Widget& Find(const char* name)
    {
        return *window.findChild<Widget*>(name);
    }
    std::string Text(const FieldRef& ref) { return TextAt(window.TheDocument().Get(), ref); }
    void Trigger(const char* action) { Find<QAction>(action).trigger(); }
    // Presses an annotation in the drawing.
    void Press(const FieldRef& ref)
    {
        FloorView& drawing = window.Drawing();
        drawing.SetChosen(ref);  // brings it into view
        QTest::mouseClick(drawing.viewport(), Qt::LeftButton, {},
                          drawing.viewport()->mapFromGlobal(drawing.OnScreen(ref).center()));
        ASSERT_EQ(window.Chosen(), ref);
    }
    // The ranked texts on offer, group titles in brackets, or what is proposed.
    QStringList Offer(const char* list = "choices")
    {
        QStringList texts;
        const QAbstractItemModel& rows = *Find<QListView>(list).model();
        for (int i = 0; i < rows.rowCount(); ++i) {
            const QModelIndex at = rows.index(i, 0);
            const QString text = at.data().toString();
            texts << (at.flags().testFlag(Qt::ItemIsSelectable) ? text : "[" + text + "]");
        }
        return texts;
    }
    void ClickOffer(const QString& text)
    {
        auto& rows = Find<QListView>("choices");
        const QModelIndexList found =
            rows.model()->match(rows.model()->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly);
        ASSERT_FALSE(found.isEmpty());
        rows.scrollTo(found.front());
        QTest::mouseClick(rows.viewport(), Qt::LeftButton, {}, rows.visualRect(found.front()).center());
    }
    // A control of the open panel.
    QWidget& Control(int id)
    {
        const HWND panel = window.Panels().Window();
        QWidget* const widget = display.WidgetOf(CWnd::FromHandle(panel)->GetDlgItem(id)->m_hWnd);
        auto* const area = qobject_cast<QAbstractScrollArea*>(widget);
        return area != nullptr ? *area->viewport() : *widget;
    }
    void ClickRow(int id, const char* text)
    {
        auto& list = *qobject_cast<QListView*>(Control(id).parentWidget());
        const QModelIndexList found = list.model()->match(list.model()->index(0, 0), Qt::DisplayRole,
                                                          QString(text), 1, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << text;
        QTest::mouseClick(&Control(id), Qt::LeftButton, {}, list.visualRect(found[0]).center());
    }

    QString Told() { return window.statusBar()->currentMessage(); }
    // From now on questions and dialogs are answered in this order: a question by a button's text, a file
    // dialog by a file. What was asked, in one text each.
    void Answer(const QStringList& answers)
    {
        prepared = answers;
        questions.clear();
        asker.start(1);
    }

    QtDisplay display{{Utf8FromGbk, GbkFromUtf8}};
    MainWindow window{display};
    QStringList questions;

private:
    void AnswerOne()
    {
        QWidget* const modal = QApplication::activeModalWidget();
        if (modal == nullptr) {
            return;
        }
        const QString answer = prepared.isEmpty() ? QString() : prepared.takeFirst();
        if (auto* const box = qobject_cast<QMessageBox*>(modal)) {
            questions << box->text() + '\n' + box->informativeText();
            for (QAbstractButton* const each : box->buttons()) {
                if (each->text().remove(QLatin1Char('&')) == answer) {
                    each->click();
                    return;
                }
            }
            ADD_FAILURE() << answer.toStdString() << " is no answer to " << questions.last().toStdString();
        } else if (qobject_cast<QFileDialog*>(modal) != nullptr) {
            modal->findChild<QLineEdit*>("fileNameEdit")->setText(answer);
            // Later, since it may ask in its turn, and a timer does not fire within itself.
            QMetaObject::invokeMethod(modal, answer.isEmpty() ? "reject" : "accept", Qt::QueuedConnection);
            return;
        } else if (auto* const rows = modal->findChild<QTreeWidget*>("differences")) {
            for (int i = 0; i < rows->topLevelItemCount(); ++i) {
                QStringList cells;
                for (int column = 0; column < rows->columnCount(); ++column) {
                    cells << rows->topLevelItem(i)->text(column);
                }
                questions << cells.join('|');
            }
            prepared.prepend(answer);
        }
        QTest::keyClick(modal, Qt::Key_Escape);
    }

    QStringList prepared;
    QTimer asker;
};

inline constexpr FieldRef Bars{false, 0, Field::TopBars};

}  // namespace Desk
