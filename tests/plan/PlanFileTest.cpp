// Plans in files: everything is there, at scale, on paper that fits.
#include <QtSvg/QSvgRenderer>

#include <gtest/gtest.h>

#include "desk/Toolkit.h"
#include "desk/plan/PlanFile.h"
#include "desk/plan/PlanItem.h"
#include "desk/project/Failure.h"
#include "desk/project/Fields.h"
#include "desk/project/ProjectFile.h"
#include "tests/plan/Drawn.h"

namespace {

using namespace Desk;

QByteArray Bytes(const QString& file)
{
    QFile in(file);
    EXPECT_TRUE(in.open(QIODevice::ReadOnly)) << file.toStdString();
    return in.readAll();
}

TEST(PlanFile, HoldsEveryTextAsTextAndTheBackdropToScale)
{
    const QTemporaryDir folder;
    const QString svg = folder.filePath("plan.SVG");
    for (const bool drawn : {false, true}) {
        Project project = drawn ? DrawnProject(1.0) : SampleProject();
        const Backdrop behind = DrawnBackdrop(1.0);
        WritePlan(project, drawn ? &behind : nullptr, svg.toStdString(), 50.0);
        const QString content = QString::fromUtf8(Bytes(svg));
        QSvgRenderer read;
        ASSERT_TRUE(read.load(content.toUtf8()));
        for (std::size_t i = 0; i < project.beams.size(); ++i) {
            for (const FieldRef& ref : RefsOf(project, {false, i})) {
                EXPECT_TRUE(content.contains(QString::fromStdString(TextAt(project, ref)).toHtmlEscaped()));
            }
        }
        if (drawn) {
            EXPECT_TRUE(content.contains("width=\"297mm\" height=\"210mm\""));
            QImage picture(2970, 2100, QImage::Format_RGB32);
            picture.fill(Qt::white);
            QPainter painter(&picture);
            read.render(&painter);
            const QRgb grey = ColorsFor(false).backdrop.rgb();
            int top = picture.height();
            int bottom = 0;
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    if (picture.pixel(x, y) == grey) {
                        top = std::min(top, y);
                        bottom = y;
                    }
                }
            }
            EXPECT_NEAR(bottom - top, 6000 / 50 * 10, 4) << "the upright beam";
        }
    }
}

TEST(PlanFile, TakesTheSmallestPaperThatFits)
{
    const QTemporaryDir folder;
    const QString pdf = folder.filePath("plan.pdf");
    const Project project = SampleProject();
    const struct {
        double scale;
        const char* points;
    } papers[] = {{500.0, "[0 0 842"}, {100.0, "[0 0 2384"}, {20.0, "[0 0 9"}};
    for (const auto& [scale, points] : papers) {
        WritePlan(project, nullptr, pdf.toStdString(), scale);
        const QByteArray content = Bytes(pdf);
        EXPECT_TRUE(content.startsWith("%PDF-"));
        EXPECT_TRUE(content.contains(points))
            << content.mid(content.indexOf("/MediaBox"), 40).toStdString();
        EXPECT_FALSE(content.contains("/Subtype /Image"));
    }
}

TEST(PlanFile, TellsWhatCannotBeDoneAndLeavesTheOldFile)
{
    const QTemporaryDir folder;
    const Project project = SampleProject();
    const std::string pdf = folder.filePath("plan.pdf").toStdString();
    WritePlan(project, nullptr, pdf);
    const QByteArray before = Bytes(QString::fromStdString(pdf));
    EXPECT_THROW(WritePlan(project, nullptr, pdf, 1.0), Failure) << "60 m of paper";
    EXPECT_THROW(WritePlan(project, nullptr, pdf, 0.0), Failure);
    EXPECT_THROW(WritePlan(project, nullptr, folder.filePath("plan.png").toStdString()), Failure);
    EXPECT_THROW(WritePlan(project, nullptr, folder.filePath("no/plan.pdf").toStdString()), Failure);
    EXPECT_EQ(Bytes(QString::fromStdString(pdf)), before);
    WritePlan(Project{}, nullptr, pdf);
    EXPECT_NE(Bytes(QString::fromStdString(pdf)), before);
}

TEST(PlanFile, APrinterGetsThePlanAtTheFirstUsualScaleThatFits)
{
    const QTemporaryDir folder;
    Project project;
    project.axesAcross = {{"1", 0}, {"2", 40000}};
    project.axesUp = {{"A", 0}};
    const struct {
        QPageSize::PageSizeId paper;
        double scale;
    } cases[] = {{QPageSize::A1, 100.0}, {QPageSize::A4, 200.0}};
    for (const auto& [paper, scale] : cases) {
        QPdfWriter printer(folder.filePath("print.pdf"));
        printer.setPageSize(QPageSize(paper));
        printer.setPageOrientation(QPageLayout::Landscape);
        EXPECT_EQ(PrintPlan(project, nullptr, printer), scale);
    }
    project.axesAcross.back().at = 9e8;
    QPdfWriter printer(folder.filePath("print.pdf"));
    EXPECT_GT(PrintPlan(project, nullptr, printer), 9e8 / 210);
    QPdfWriter nowhere(folder.filePath("no/such/print.pdf"));
    EXPECT_EQ(PrintPlan(project, nullptr, nowhere), 0.0);
}

}  // namespace
