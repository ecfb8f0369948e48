#include "cli/runs/painting.h"

#include <cstdio>
#include <filesystem>

namespace zentrik::cli {

namespace fs = std::filesystem;

std::unique_ptr<QGuiApplication> paintingApplication() {
    static int count = 1;
    static char name[] = "zentrik-cli", *names[] = {name, nullptr};
    if (QCoreApplication::instance() != nullptr) return nullptr;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type >= QtCriticalMsg) std::fprintf(stderr, "%s\n", qPrintable(text));
    });
    return std::make_unique<QGuiApplication>(count, names);
}

std::string projectName(const std::string& file) {
    return file == "-" ? "Zentrik" : fs::path(file).stem().string();
}

void findSprites(Editor& ed, const std::string& file) {
    std::error_code error;
    const fs::path folder = fs::absolute(file, error).parent_path().parent_path();
    if (file != "-" && fs::is_directory(folder / "sprites", error)) ed.programFolder = folder.string();
}

}  // namespace zentrik::cli
