#include "desk/window/ImportExport.h"

#include <QtPrintSupport/QPrintDialog>
#include <QtPrintSupport/QPrinter>

#include "desk/drawing/Export.h"
#include "desk/plan/PlanFile.h"
#include "desk/project/Failure.h"
#include "desk/project/ProjectFile.h"
#include "desk/project/SafeFile.h"
#include "desk/reading/ImportTexts.h"
#include "desk/window/Ask.h"
#include "desk/window/Languages.h"
#include "desk/window/MakeDialogs.h"
#include "desk/window/Watched.h"

namespace Desk {

namespace {

TextsFile ReadInEitherEncoding(const std::string& file)
{
    try {
        return ReadTextsFile(file, Encoding::Utf8);
    } catch (const Failure&) {
        return ReadTextsFile(file, Encoding::Gbk);
    }
}

// The first texts that nothing could be read of.
QString Unread(const std::vector<ImportedText>& texts)
{
    constexpr int Enough = 12;
    QStringList lines;
    for (const ImportedText& text : texts) {
        if (!text.reading.annotations.empty()) {
            continue;
        }
        if (lines.size() == Enough) {
            lines << QStringLiteral("...");
            break;
        }
        lines << QStringLiteral("%1: %2").arg(text.drawn.line).arg(QString::fromStdString(text.drawn.text));
    }
    return lines.join('\n');
}

}  // namespace

ImportExport::ImportExport(Document& document, ProjectFiles& files, QWidget& window)
    : QObject(&window), m_document(document), m_files(files), m_window(window)
{
}

void ImportExport::AskNew()
{
    if (std::optional<Project> floor = AskNewFloor(m_window); floor && m_files.MayLeave()) {
        m_document.OpenNew(std::move(*floor), false);
        emit Said(tr("An empty floor. Draw beams with Ctrl+B"));
    }
}

void ImportExport::AskImport()
{
    const QString file = QFileDialog::getOpenFileName(
        &m_window, tr("Import a drawing or texts"), QFileInfo(m_document.File()).absolutePath(),
        tr("Drawings and texts (*.dxf *.txt *.tsv);;All files (*)"));
    if (file.isEmpty()) {
        return;
    }
    const bool isDrawing = file.endsWith(QLatin1String(".dxf"), Qt::CaseInsensitive);
    if (const auto choices = isDrawing ? std::optional(Choices()) : AskChoices(m_window)) {
        Import(file, *choices);
    }
}

bool ImportExport::Import(const QString& file, const Choices& choices)
{
    if (!m_files.MayLeave()) {
        return false;
    }
    try {
        const std::string name = file.toStdString();
        if (IsDrawing(ReadWholeFile(name))) {
            // As it would be opened from a project file: what only the drawing knows stays there.
            const Project project = Watched(tr("Importing %1").arg(QFileInfo(file).fileName()), [&] {
                return ParseProject(FormatProject(Drawing::Read(name).Get()), name);
            });
            if (project.beams.empty()) {
                throw Failure(Phrase("Desk", "%1: no beam's label could be read"), name);
            }
            m_document.OpenNew(project, true);
            emit Said(tr("%1 beams imported; the project has no file yet").arg(project.beams.size()));
            return true;
        }
        const std::vector<ImportedText> texts = ReadTexts(ReadInEitherEncoding(name), choices);
        Project project = ProjectOf(texts, TitleFor(name));
        const std::size_t read = project.beams.size() + project.walls.size();
        if (read == 0) {
            throw Failure(Phrase("Desk", "%1: no annotation could be read"), name);
        }
        m_document.OpenNew(std::move(project), true);
        emit Said(tr("%1 of %2 texts imported; the project has no file yet").arg(read).arg(texts.size()));
        if (read < texts.size()) {
            Tell(&m_window, tr("%1 texts were not read").arg(texts.size() - read), Unread(texts));
        }
        return true;
    } catch (const Cancelled&) {
        return false;
    } catch (const Failure& failure) {
        Tell(&m_window, tr("Nothing was imported"), Told(failure));
        return false;
    }
}

std::optional<Backdrop> ImportExport::Behind() const
{
    const Drawing* const from = m_document.From();
    return from != nullptr ? std::optional(from->BehindWithOpenTexts()) : std::nullopt;
}

void ImportExport::AskExport()
{
    const QString drawings = tr("Drawings (*.dxf)");
    const QString plans = tr("Plans (*.pdf *.svg)");
    QFileDialog dialog(&m_window, tr("Export"), QFileInfo(m_document.File()).absolutePath());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // A drawing is saved as one.
    dialog.setNameFilters(m_document.From() != nullptr ? QStringList{plans} : QStringList{plans, drawings});
    dialog.setDefaultSuffix("pdf");
    connect(&dialog, &QFileDialog::filterSelected, &dialog,
            [&](const QString& filter) { dialog.setDefaultSuffix(filter == drawings ? "dxf" : "pdf"); });
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const QString file = dialog.selectedFiles().constFirst();
    constexpr int UsualScale = 100;
    constexpr int LeastScale = 10000;
    bool isGiven = true;
    const int scale = file.endsWith(QLatin1String(".dxf"), Qt::CaseInsensitive)
                          ? UsualScale
                          : QInputDialog::getInt(&m_window, tr("Export"), tr("Scale of the plan, 1 to"),
                                                 UsualScale, 1, LeastScale, 50, &isGiven);
    if (isGiven) {
        Export(file, scale);
    }
}

bool ImportExport::Export(const QString& file, double scale)
{
    const QString what = tr("Exporting %1").arg(QFileInfo(file).fileName());
    try {
        const bool isSelf = QFileInfo(file) == QFileInfo(m_document.File()) && QFileInfo::exists(file);
        if (isSelf) {
            throw Failure(Phrase("Desk", "%1: the export would replace what is exported"),
                          file.toStdString());
        }
        if (!file.endsWith(QLatin1String(".dxf"), Qt::CaseInsensitive)) {
            const std::optional<Backdrop> behind = Behind();
            Watched(what, [&] {
                WritePlan(m_document.Get(), behind ? &*behind : nullptr, file.toStdString(), scale);
            });
        } else if (m_document.From() != nullptr) {
            throw Failure(Phrase("Desk", "%1: a drawing already; save it under this name"),
                          file.toStdString());
        } else {
            Watched(what, [&] { ExportDrawing(m_document.Get(), file.toStdString()); });
        }
    } catch (const Cancelled&) {
        return false;
    } catch (const Failure& failure) {
        Tell(&m_window, tr("Nothing was exported"), Told(failure));
        return false;
    }
    emit Said(tr("Exported: %1").arg(file));
    return true;
}

void ImportExport::Print()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(m_window.windowTitle());
    printer.setPageOrientation(QPageLayout::Landscape);
    QPrintDialog dialog(&printer, &m_window);
    dialog.setObjectName("printDialog");
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    const std::optional<Backdrop> behind = Behind();
    const double scale = PrintPlan(m_document.Get(), behind ? &*behind : nullptr, printer);
    emit Said(scale > 0.0 ? tr("Printed at 1:%1").arg(scale) : tr("The printer takes nothing"));
}

}  // namespace Desk
