#include "desk/window/Watched.h"
#include "desk/Toolkit.h"

#include <limits>
#include <memory>

namespace Desk {

namespace {

constexpr qint64 Patience = 400;  // ms before the box comes
constexpr qint64 Pause = 50;      // ms between two looks at what the person does

std::unique_ptr<QProgressDialog> MakeBox(const QString& what)
{
    auto box = std::make_unique<QProgressDialog>(what, QCoreApplication::translate("Desk", "Cancel"), 0, 0,
                                                 QApplication::activeWindow());
    box->setObjectName("working");
    box->setWindowTitle(QStringLiteral("beamdesk"));
    box->setWindowModality(Qt::ApplicationModal);
    box->setAutoClose(false);
    box->setAutoReset(false);
    box->setMinimumDuration(std::numeric_limits<int>::max());  // it is shown here
    for (auto* const bar : box->findChildren<QProgressBar*>()) {
        bar->setAccessibleName(what);
    }
    box->show();
    return box;
}

}  // namespace

void RunWatched(const QString& what, const std::function<void()>& work)
{
    std::unique_ptr<QProgressDialog> box;
    QElapsedTimer since;
    since.start();
    qint64 last = 0;
    const ProgressListener listener([&](std::size_t done, std::size_t all) {
        const qint64 now = since.elapsed();
        if (now < Patience || now - last < Pause) {
            return;
        }
        if (box == nullptr) {
            box = MakeBox(what);
        }
        box->setMaximum(static_cast<int>(all));
        box->setValue(static_cast<int>(done));
        QCoreApplication::processEvents();
        if (box->wasCanceled()) {
            throw Cancelled();
        }
        last = since.elapsed();
    });
    work();
}

}  // namespace Desk
