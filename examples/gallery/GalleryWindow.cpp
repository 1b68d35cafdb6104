#include "GalleryWindow.h"

#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QTime>
#include <QVBoxLayout>

static const char kGalleryStyle[] =
    "QMainWindow, QWidget#galleryPage, QScrollArea, QScrollArea > QWidget > QWidget"
    " { background-color: #282828; color: #d0d0d0; }"
    "QListWidget { background-color: #1c1c1c; color: #d0d0d0; border: none; }"
    "QListWidget::item:selected { background-color: #505050; color: #82be0f; }"
    "QPlainTextEdit { background-color: #1c1c1c; color: #a0a0a0; border: 1px solid #505050; }"
    "QLabel#galleryTitle { color: #82be0f; font-weight: bold; font-size: 14px; }"
    "QSlider#EditedWidget::handle:horizontal { background: #82be0f; }";

GalleryWindow::GalleryWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_entries(GalleryEntries())
{
    setWindowTitle(QStringLiteral("Vela Widgets Gallery"));
    setStyleSheet(QLatin1String(kGalleryStyle));

    auto *splitter = new QSplitter(this);
    m_list = new QListWidget(splitter);
    m_list->setMinimumWidth(200);
    auto *right = new QSplitter(Qt::Vertical, splitter);
    m_pages = new QStackedWidget(right);
    m_log = new QPlainTextEdit(right);
    m_log->setReadOnly(true);
    m_log->setMaximumBlockCount(500);
    right->setStretchFactor(0, 3);
    right->setStretchFactor(1, 1);
    splitter->setStretchFactor(1, 1);
    setCentralWidget(splitter);

    QString group;
    for (const GalleryEntry &entry : m_entries) {
        if (entry.group != group) {
            group = entry.group;
            auto *header = new QListWidgetItem(group, m_list);
            header->setFlags(Qt::NoItemFlags);
            QFont font = header->font();
            font.setBold(true);
            header->setFont(font);
        }
        auto *item = new QListWidgetItem(QStringLiteral("    ") + entry.name, m_list);
        QWidget *shown = nullptr;
        item->setData(Qt::UserRole, m_pages->addWidget(createPage(entry, &shown)));
        m_widgets.append(shown);
    }
    connect(m_list, &QListWidget::currentItemChanged, this, [this](QListWidgetItem *item) {
        if (item && item->data(Qt::UserRole).isValid())
            m_pages->setCurrentIndex(item->data(Qt::UserRole).toInt());
    });
    if (m_list->count() > 1)
        m_list->setCurrentRow(1);
    resize(1100, 720);
}

QWidget *GalleryWindow::createPage(const GalleryEntry &entry, QWidget **shown)
{
    auto *page = new QWidget;
    page->setObjectName(QStringLiteral("galleryPage"));
    auto *layout = new QVBoxLayout(page);
    auto *title = new QLabel(entry.name, page);
    title->setObjectName(QStringLiteral("galleryTitle"));
    auto *description = new QLabel(entry.description, page);
    description->setWordWrap(true);
    layout->addWidget(title);
    layout->addWidget(description);

    auto *scroll = new QScrollArea(page);
    scroll->setWidgetResizable(true);
    auto *holder = new QWidget;
    auto *holderLayout = new QVBoxLayout(holder);
    *shown = entry.create(*this);
    (*shown)->setParent(holder);
    holderLayout->addWidget(*shown);
    holderLayout->addStretch(1);
    scroll->setWidget(holder);
    layout->addWidget(scroll, 1);
    return page;
}

QString GalleryWindow::sampleDir() const
{
    return m_samples.path();
}

void GalleryWindow::log(const QString &line)
{
    if (m_log)
        m_log->appendPlainText(QTime::currentTime().toString(QStringLiteral("HH:mm:ss.zzz  "))
                               + line);
}

QWidget *GalleryWindow::mainWindow() const
{
    return const_cast<GalleryWindow *>(this);
}

int GalleryWindow::writeScreenshots(const QString &dir)
{
    QDir().mkpath(dir);
    int failures = 0;
    for (int i = 0; i < m_entries.size(); ++i) {
        m_pages->setCurrentIndex(i);
        QWidget *widget = m_widgets.at(i);
        widget->ensurePolished();
        const QSize size = widget->size().expandedTo(widget->sizeHint()).expandedTo(QSize(64, 24));
        widget->resize(size);
        const QPixmap shot = widget->grab();
        const QString file = QDir(dir).filePath(m_entries.at(i).name + QStringLiteral(".png"));
        if (shot.isNull() || !shot.save(file))
            ++failures;
    }
    return failures;
}
