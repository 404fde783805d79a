#include "ui/profiling/PrintReader.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QProgressDialog>
#include <QStandardPaths>
#include <QTimer>

#include "ui/base/BusyCursor.h"
#include "ui/base/QtText.h"

namespace tavrene::ui {
namespace {

QString Reader() {
    return QStandardPaths::findExecutable("tesseract");
}

}  // namespace

QString WhyNoPrintIsRead() {
    return Reader().isEmpty()
               ? Tr("NameBoxesDialog", "The program tesseract, which reads print, is not installed.")
               : QString();
}

ReadPrint ReadPrintOf(const QString& image, QWidget& window, int limit) {
    QProcess reader;
    reader.setStandardErrorFile(QProcess::nullDevice());
    // Its threads wait for each other in a loop: on a busy machine one alone is faster by far.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("OMP_THREAD_LIMIT", "1");
    reader.setProcessEnvironment(environment);
    // Modal, so that nothing else is done to the profile meanwhile.
    QProgressDialog box(Tr("NameBoxesDialog", "Reading what is printed beside the boxes..."),
                        Tr("NameBoxesDialog", "Cancel"), 0, 0, &window);
    box.setObjectName("PrintProgress");
    box.setWindowTitle(Tr("NameBoxesDialog", "Name Boxes"));
    QObject::connect(&reader, &QProcess::finished, &box, &QDialog::accept);
    QObject::connect(&reader, &QProcess::errorOccurred, &box, &QDialog::accept);
    bool isLate = false;
    QTimer::singleShot(limit, &box, [&] {
        isLate = true;
        box.accept();
    });
    // Sparse text: words in any place, as they stand on forms.
    QTimer::singleShot(0, &box, [&] { reader.start(Reader(), {image, "stdout", "--psm", "11", "tsv"}); });
    const UsualCursor usual;
    const bool isDone = box.exec() == QDialog::Accepted;
    if (reader.state() != QProcess::NotRunning) {
        reader.disconnect();
        reader.kill();
        reader.waitForFinished();
    }
    if (isLate)
        return {{}, Tr("NameBoxesDialog", "Reading the print takes too long; it was given up.")};
    if (!isDone)
        return {};
    if (reader.error() != QProcess::UnknownError || reader.exitCode() != 0)
        return {{}, Tr("NameBoxesDialog", "The program tesseract could not read the specimen image.")};
    return {reader.readAllStandardOutput().toStdString(), {}};
}

}  // namespace tavrene::ui
