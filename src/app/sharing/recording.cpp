#include "app/sharing/recording.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QThread>
#include <QVBoxLayout>
#include <cmath>
#include <utility>

namespace zentrik {

namespace {

constexpr int period = 100;  // milliseconds between two looks at the progress

QString timeText(double seconds) {
    const auto whole = static_cast<qint64>(std::ceil(seconds));
    return whole < 60 ? QString("%1 s").arg(whole) : QString("%1 min %2 s").arg(whole / 60).arg(whole % 60);
}

QString sizeText(double bytes) {
    return QLocale::c().formattedDataSize(std::llround(bytes), bytes < 1e6 ? 0 : 1,
                                          QLocale::DataSizeSIFormat);
}

// Of a file, or of all files of a folder.
qint64 sizeOf(const QFileInfo& made) {
    if (!made.isDir()) return made.size();
    qint64 size = 0;
    for (const QFileInfo& file : QDir(made.filePath()).entryInfoList(QDir::Files)) size += file.size();
    return size;
}

}  // namespace

QString timeLeft(double passed, double part) {
    if (part <= 0 || passed <= 0.5) return "just begun";
    return timeText(passed * (1 - part) / part) + " left";
}

Recording::Recording(const QString& title, const QString& path, Job job, QWidget* parent)
    : QDialog(parent),
      path_(path),
      text_(new QLabel(this)),
      bar_(new QProgressBar(this)),
      folder_(new QPushButton("Open &Folder", this)),
      offer_(new QPushButton(this)),
      end_(new QPushButton("Cancel", this)) {
    setObjectName("Recording");
    setWindowTitle(title);
    folder_->setObjectName("openFolder");
    end_->setObjectName("cancel");
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setMinimumWidth(360);
    bar_->setRange(0, 1000);
    bar_->setAccessibleName("Progress");
    auto* row = new QDialogButtonBox(this);
    row->addButton(offer_, QDialogButtonBox::ActionRole);
    row->addButton(folder_, QDialogButtonBox::ActionRole);
    row->addButton(end_, QDialogButtonBox::RejectRole);
    folder_->setVisible(false);  // until there is something in it
    offer_->setObjectName("offer");
    offer_->setVisible(false);
    for (QPushButton* button : {offer_, end_}) button->setAutoDefault(false);  // Enter ends no film
    end_->setFocus();
    auto* column = new QVBoxLayout(this);
    for (QWidget* part : std::initializer_list<QWidget*>{text_, bar_, row}) column->addWidget(part);
    connect(row, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(folder_, &QPushButton::clicked, this, [this] { openFolder(QFileInfo(path_).absolutePath()); });
    connect(&look_, &QTimer::timeout, this, &Recording::showProgress);
    thread_.reset(QThread::create([this, job = std::move(job)] {
        result_ = job([this](const FilmState& state) {
            done_ = state.done;
            expectedSize_ = state.expectedSize;
            return !cancelled_;
        });
    }));
    connect(thread_.get(), &QThread::finished, this, &Recording::finish);
    since_.start();
    look_.start(period);
    showProgress();
    thread_->start(QThread::LowPriority);
}

Recording::~Recording() { cancel(); }

void Recording::offer(const QString& caption, const QString& tip, std::function<void()> chosen) {
    offer_->setText(caption);
    offer_->setToolTip(tip);
    offer_->setVisible(true);
    connect(offer_, &QPushButton::clicked, this, std::move(chosen));
}

void Recording::cancel() {
    if (!isRunning()) return;
    cancelled_ = true;
    thread_->wait();
    thread_.reset();
}

void Recording::done(int result) {
    look_.stop();
    cancel();
    QDialog::done(result);
    deleteLater();
}

void Recording::showProgress() {
    const double part = done_;
    bar_->setValue(static_cast<int>(1000 * part));
    const double passed = static_cast<double>(since_.elapsed()) / 1000;
    const double size = expectedSize_;
    const QString large = size > 0 ? QString("\nIt will have about %1").arg(sizeText(size)) : QString("\n");
    text_->setText(QString("Making %1: %2").arg(QFileInfo(path_).fileName(), timeLeft(passed, part)) + large);
}

void Recording::finish() {
    if (!isRunning()) return;
    look_.stop();
    thread_->wait();
    thread_.reset();
    bar_->setVisible(false);
    end_->setText("Close");
    for (QPushButton* button : {offer_, end_}) button->setAutoDefault(true);
    const QFileInfo file(path_);
    QString text = QString::fromStdString(result_.problem);
    if (text.isEmpty()) {
        text = file.fileName() + ", " + sizeText(static_cast<double>(sizeOf(file)));
        if (!result_.stopped.empty())
            text += "\nThe run ended early. " + QString::fromStdString(result_.stopped);
        folder_->setVisible(true);
        folder_->setFocus();
    } else {
        offer_->setVisible(false);
        text = QString("%1 could not be made.\n%2").arg(file.fileName(), text);
    }
    text_->setText(text);
    adjustSize();
}

}  // namespace zentrik
