// clipboard_owner HOW: a program that has a picture on the clipboard and is no good at handing it
// over. Writes "ready" when the clipboard is its. HOW:
//
//   slow    takes a second to hand it over
//   dies    crashes when it is asked for it
//   hangs   does not even tell in which formats it has it

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QThread>
#include <QTimer>
#include <iostream>
#include <unistd.h>

namespace {

QByteArray PictureFile()
{
    QImage image(9, 6, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QByteArray file;
    QBuffer buffer(&file);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return file;
}

class Offer : public QMimeData {
public:
    explicit Offer(const QString& how)
        : m_how(how)
    {
    }
    QStringList formats() const override { return { "image/png" }; }

protected:
    QVariant retrieveData(const QString&, QMetaType) const override
    {
        if (m_how == "dies")
            ::_exit(0);
        QThread::sleep(1);
        return PictureFile();
    }

private:
    const QString m_how;
};

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    if (argc != 2)
        return 2;
    const QString how = argv[1];
    QGuiApplication::clipboard()->setMimeData(new Offer(how));
    QTimer::singleShot(0, [how] {
        std::cout << "ready" << std::endl;
        if (how == "hangs")
            ::pause();
    });
    return QGuiApplication::exec();
}
