// Going from annotation to annotation by keyboard, and the search.
#include <algorithm>

#include "desk/window/FieldNames.h"
#include "desk/window/MainWindow.h"

namespace Desk {

namespace {

// All places of a project in reading order, for stepping and for the search: beams first, then walls.
std::size_t OwnerCount(const Project& project) { return project.beams.size() + project.walls.size(); }

FieldRef OwnerAt(const Project& project, std::size_t number)
{
    const bool wall = number >= project.beams.size();
    return {wall, wall ? number - project.beams.size() : number, Field::Name};
}

std::size_t NumberOf(const Project& project, const FieldRef& place)
{
    return place.index + (place.isWall ? project.beams.size() : 0);
}

// A place's number by steps around a circle.
std::size_t Around(std::size_t from, int by, std::size_t count)
{
    return by > 0 ? (from + 1) % count : (from + count - 1) % count;
}

}  // namespace

void MainWindow::StepField(int by)
{
    if (!m_chosen) {
        StepOwner(by);
        return;
    }
    const std::span<const Field> fields = FieldsOf(*m_chosen);
    const auto now = std::find(fields.begin(), fields.end(), m_chosen->field);
    const std::size_t next = Around(static_cast<std::size_t>(now - fields.begin()), by, fields.size());
    Choose(FieldRef{m_chosen->isWall, m_chosen->index, fields[next]});
}

// The same field of the next beam or wall, where it has one.
void MainWindow::StepOwner(int by)
{
    const Project& project = m_document.Get();
    const std::size_t count = OwnerCount(project);
    if (count == 0) {
        return;
    }
    const std::size_t from = m_chosen ? NumberOf(project, *m_chosen) : by > 0 ? count - 1 : 0;
    FieldRef next = OwnerAt(project, Around(from, by, count));
    if (m_chosen && m_chosen->isWall == next.isWall) {
        next.field = m_chosen->field;
    }
    Choose(next);
}

void MainWindow::StartSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

// The next text that holds what is searched for, from the chosen one around the whole project.
void MainWindow::Find(int by)
{
    const QString wanted = m_search->text().trimmed();
    const Project& project = m_document.Get();
    const std::size_t count = OwnerCount(project);
    if (wanted.isEmpty() || count == 0) {
        return;
    }
    FieldRef place = m_chosen.value_or(OwnerAt(project, by > 0 ? count - 1 : 0));
    if (!m_chosen) {
        place.field = by > 0 ? FieldsOf(place).back() : FieldsOf(place).front();
    }
    const FieldRef start = place;
    do {
        const std::span<const Field> fields = FieldsOf(place);
        const auto at = std::find(fields.begin(), fields.end(), place.field) - fields.begin() + by;
        if (at >= 0 && at < std::ssize(fields)) {
            place.field = fields[static_cast<std::size_t>(at)];
        } else {
            place = OwnerAt(project, Around(NumberOf(project, place), by, count));
            place.field = by > 0 ? FieldsOf(place).front() : FieldsOf(place).back();
        }
        if (QString::fromStdString(TextAt(project, place)).contains(wanted, Qt::CaseInsensitive)) {
            Choose(place);
            return;
        }
    } while (place != start);
    statusBar()->showMessage(tr("No annotation holds \"%1\"").arg(wanted));
}

void MainWindow::FillSearchWords()
{
    QSet<QString> words;
    for (const Beam& beam : m_document.Get().beams) {
        words.insert(QString::fromStdString(beam.name));
    }
    for (const Wall& wall : m_document.Get().walls) {
        words.insert(QString::fromStdString(wall.name));
    }
    words.remove(QString());
    QStringList sorted(words.begin(), words.end());
    QCollator order;
    order.setNumericMode(true);
    std::sort(sorted.begin(), sorted.end(), order);
    auto* const completer = new QCompleter(sorted, m_search);
    completer->setCaseSensitivity(Qt::CaseInsensitive);
    completer->setFilterMode(Qt::MatchContains);
    connect(completer, qOverload<const QString&>(&QCompleter::activated), &m_findSoon,
            qOverload<>(&QTimer::start));
    delete m_search->completer();
    m_search->setCompleter(completer);
}

void MainWindow::StartEditing()
{
    m_propertyDock->show();
    m_propertyDock->raise();
    m_properties->window()->activateWindow();  // it may float
    m_properties->EditMarked();
}

void MainWindow::ZoomIn() { m_floor->ZoomBy(1.25); }
void MainWindow::ZoomOut() { m_floor->ZoomBy(0.8); }
void MainWindow::Fit() { m_floor->Fit(); }

}  // namespace Desk
