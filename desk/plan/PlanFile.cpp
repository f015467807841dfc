#include "desk/plan/PlanFile.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include <QtSvg/QSvgGenerator>

#include "desk/plan/FloorItems.h"
#include "desk/project/Failure.h"
#include "desk/project/Progress.h"
#include "desk/project/SafeFile.h"

namespace Desk {

namespace {

constexpr double Margin = 10.0;       // mm of paper on each side
constexpr double LineWidth = 0.18;    // mm of paper
constexpr double MostPaper = 5000.0;  // mm; readers of PDF files take 5080
constexpr int DotsAMm = 50;
constexpr int Resolution = 1270;  // the same in dots an inch

// The toolkit draws only with an application, which a command of the console has none of.
class WithApplication {
public:
    WithApplication()
    {
        if (QCoreApplication::instance() == nullptr) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
            QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
            m_made.emplace(m_count, m_arguments);
        }
    }

private:
    int m_count = 1;
    char m_name[9] = "beamdesk";
    char* m_arguments[2] = {m_name, nullptr};
    std::optional<QApplication> m_made;
};

QSizeF PaperFor(const QSizeF& plan)
{
    const QSizeF needed = plan + QSizeF(2 * Margin, 2 * Margin);
    for (const QPageSize::PageSizeId id :
         {QPageSize::A4, QPageSize::A3, QPageSize::A2, QPageSize::A1, QPageSize::A0}) {
        const QSizeF paper = QPageSize(id).size(QPageSize::Millimeter).transposed();
        if (needed.width() <= paper.width() && needed.height() <= paper.height()) {
            return paper;
        }
    }
    return needed;
}

// The scene as its own rendering draws it, item by item so that it can be cut off between two.
void PaintItems(QPainter& painter, const QGraphicsScene& scene, const QPointF& corner, double dotsAMm,
                const QRectF& shown)
{
    const QTransform before = painter.worldTransform();
    const QTransform toPage = QTransform::fromTranslate(-shown.left(), -shown.top()) *
                              QTransform::fromScale(dotsAMm, dotsAMm) *
                              QTransform::fromTranslate(corner.x(), corner.y());
    painter.setWorldTransform(toPage * before);
    painter.setClipRect(shown);
    const QList<QGraphicsItem*> items =
        scene.items(shown, Qt::IntersectsItemBoundingRect, Qt::AscendingOrder);
    for (qsizetype i = 0; i < items.size(); ++i) {
        TellProgress(static_cast<std::size_t>(i), static_cast<std::size_t>(items.size()));
        QStyleOptionGraphicsItem option;
        option.exposedRect = items[i]->boundingRect();
        painter.save();
        painter.setWorldTransform(items[i]->sceneTransform(), true);
        items[i]->paint(&painter, &option, nullptr);
        painter.restore();
    }
}

QString Escaped(const std::string& text) { return QString::fromStdString(text).toHtmlEscaped(); }

void Paint(QPaintDevice& device, QGraphicsScene& scene, const QRectF& shown, const QSizeF& paper,
           double scale)
{
    QPainter painter(&device);
    const QSizeF size = shown.size() / scale * DotsAMm;
    const QPointF middle(paper.width() / 2.0 * DotsAMm, paper.height() / 2.0 * DotsAMm);
    PaintItems(painter, scene, middle - QPointF(size.width() / 2.0, size.height() / 2.0), DotsAMm / scale,
               shown);
}

QByteArray AsPdf(QGraphicsScene& scene, const QRectF& shown, const QSizeF& paper, double scale,
                 const QString& title)
{
    QBuffer made;
    made.open(QIODevice::WriteOnly);
    QPdfWriter writer(&made);
    writer.setResolution(Resolution);
    writer.setTitle(title);
    writer.setPageSize(QPageSize(paper, QPageSize::Millimeter, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    Paint(writer, scene, shown, paper, scale);
    return made.data();
}

QByteArray AsSvg(QGraphicsScene& scene, const QRectF& shown, const QSizeF& paper, double scale,
                 const QString& title)
{
    QBuffer made;
    QSvgGenerator generator;
    generator.setOutputDevice(&made);
    generator.setResolution(Resolution);
    generator.setTitle(title);
    const QSize size = (paper * DotsAMm).toSize();
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size));
    Paint(generator, scene, shown, paper, scale);
    return made.data();
}

}  // namespace

void WritePlan(const Project& project, const Backdrop* behind, const std::filesystem::path& file,
               double scale)
{
    const QString ending = QString::fromStdString(file.extension().string()).toLower();
    const bool pdf = ending == QLatin1String(".pdf");
    if (!pdf && ending != QLatin1String(".svg")) {
        throw Failure(Phrase("Desk", "%1: a plan is written as .pdf or .svg"), file.string());
    }
    if (!(scale > 0.0) || !std::isfinite(scale)) {
        throw Failure("a plan's scale is a number above 0");
    }
    const WithApplication application;
    PlanColors colors = ColorsFor(false);
    colors.lineWidth = LineWidth * scale;
    QGraphicsScene scene;
    scene.setItemIndexMethod(QGraphicsScene::NoIndex);  // everything is drawn once
    const QRectF shown = AddFloor(scene, project, behind, colors).shown;
    const QSizeF paper = PaperFor(shown.size() / scale);
    if (const double most = std::max(paper.width(), paper.height()); most > MostPaper) {
        throw Failure(Phrase("Desk", "at 1:%1 the plan would be %2 m long, and 5 m are the most; a larger "
                                     "scale number makes it smaller"),
                      QString::number(scale).toStdString(),
                      QString::number(most / 1000.0, 'f', 1).toStdString());
    }
    const QString title = QString::fromStdString(project.title);
    const QByteArray bytes =
        pdf ? AsPdf(scene, shown, paper, scale, title) : AsSvg(scene, shown, paper, scale, title);
    ReplaceFile(file, bytes.toStdString());
}

double PrintPlan(const Project& project, const Backdrop* behind, QPagedPaintDevice& device)
{
    constexpr double Usual[] = {100, 150, 200, 250, 300, 400, 500, 750, 1000, 1500, 2000, 3000, 5000};
    QPainter painter;
    if (!painter.begin(&device)) {
        return 0.0;
    }
    const double dotsAMm = device.logicalDpiX() / 25.4;
    const QSizeF page = QSizeF(painter.viewport().size()) / dotsAMm;
    const auto needed = [&](const QRectF& shown) {
        return std::max(shown.width() / page.width(), shown.height() / page.height());
    };
    PlanColors colors = ColorsFor(false);
    QGraphicsScene scene;
    scene.setItemIndexMethod(QGraphicsScene::NoIndex);
    const QRectF shown = AddFloor(scene, project, behind, colors).shown;
    const double* const usual = std::lower_bound(std::begin(Usual), std::end(Usual), needed(shown));
    const double scale = usual != std::end(Usual) ? *usual : std::ceil(needed(shown));
    colors.lineWidth = LineWidth * scale;
    const QSizeF size = shown.size() / scale * dotsAMm;
    const QPointF corner((painter.viewport().width() - size.width()) / 2.0,
                         (painter.viewport().height() - size.height()) / 2.0);
    PaintItems(painter, scene, corner, dotsAMm / scale, shown);
    return scale;
}

void WriteTables(const std::string& title, const std::vector<std::vector<std::vector<std::string>>>& tables,
                 const std::vector<std::string>& notes, const std::filesystem::path& file)
{
    const WithApplication application;
    QString html = QStringLiteral("<h3>%1</h3>").arg(Escaped(title));
    for (const std::vector<std::vector<std::string>>& rows : tables) {
        html += QLatin1String("<table cellpadding='3'>");
        for (const std::vector<std::string>& row : rows) {
            html += QLatin1String("<tr>");
            const bool isHead = &row == &rows.front() && row.size() > 2;
            for (const std::string& cell : row) {
                html += QStringLiteral("<%1 align='%2'>%3</%1>")
                            .arg(isHead ? QLatin1String("th") : QLatin1String("td"),
                                 &cell == &row.front() ? QLatin1String("left") : QLatin1String("right"),
                                 Escaped(cell));
            }
            html += QLatin1String("</tr>");
        }
        html += QLatin1String("</table><br>");
    }
    for (const std::string& note : notes) {
        html += QStringLiteral("<p>%1</p>").arg(Escaped(note));
    }
    QTextDocument document;
    document.setDefaultFont(QFont(document.defaultFont().family(), 8));
    document.setHtml(html);
    QBuffer made;
    made.open(QIODevice::WriteOnly);
    QPdfWriter writer(&made);
    writer.setTitle(QString::fromStdString(title));
    writer.setPageSize(QPageSize(QPageSize::A4));
    document.print(&writer);
    ReplaceFile(file, made.data().toStdString());
}

}  // namespace Desk
