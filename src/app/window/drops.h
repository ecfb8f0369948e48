#pragma once
#include "app/views/views.h"
#include "app/window/events.h"

#include <QUrl>
#include <functional>

namespace zentrik {

// Takes whatever is dropped on the window: a project becomes the model, a picture the sprite of the node that
// it is dropped on. Status panel 5 says why something is neither.
class Drops : public QObject {
public:
    Drops(QWidget& window, Events& events, SceneView& scene);

    std::function<void(const QString& file)> projectDropped;
    std::function<void()> spritesChanged;  // in their folder

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& window_;
    Events& events_;
    SceneView& scene_;

    void take(const QUrl& url, QPoint at);
    void takePicture(const std::string& path, QPoint at);
    void refuse(const std::string& why);
};

}  // namespace zentrik
