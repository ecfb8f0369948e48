#pragma once
#include "export/films/film.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>
#include <atomic>
#include <memory>

class QLabel;
class QProgressBar;
class QPushButton;
class QThread;

namespace zentrik {

// How long a job takes on that has done a part (0 to 1) in so many seconds: "1 min 5 s left".
QString timeLeft(double passed, double part);

// Makes a film or a table in a thread of its own, and shows how far it is beside the window, which stays
// usable. Ends with the file's name and size, or with what went wrong. Closing it cancels.
class Recording : public QDialog {
public:
    using Job = std::function<FilmResult(const FilmProgress&)>;
    Recording(const QString& title, const QString& path, Job job, QWidget* parent);
    ~Recording() override;

    std::function<void(const QString& folder)> openFolder;
    // Shows a button beside the size, while the work is done and after.
    void offer(const QString& caption, const QString& tip, std::function<void()> chosen);

    bool isRunning() const { return thread_ != nullptr; }

protected:
    void done(int result) override;

private:
    const QString path_;
    QLabel* const text_;
    QProgressBar* const bar_;
    QPushButton* const folder_;
    QPushButton* const offer_;
    QPushButton* const end_;  // Cancel, then Close
    QTimer look_;
    QElapsedTimer since_;
    std::unique_ptr<QThread> thread_;
    std::atomic<double> done_ = 0, expectedSize_ = 0;
    std::atomic<bool> cancelled_ = false;
    FilmResult result_;

    void showProgress();
    void finish();
    void cancel();
};

}  // namespace zentrik
