#include "GalleryWindow.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QTime>
#include <QVBoxLayout>

// The host palette the library's own style sheets are written for.
static const char kGalleryStyle[] =
    "QMainWindow, QWidget#galleryPage, QWidget#galleryShot, QScrollArea,"
    " QScrollArea > QWidget > QWidget { background-color: #282828; color: #d0d0d0; }"
    "QLabel { color: #d0d0d0; }"
    "QListWidget { background-color: #1c1c1c; color: #d0d0d0; border: none; }"
    "QListWidget::item:selected { background-color: #505050; color: #82be0f; }"
    "QPlainTextEdit { background-color: #1c1c1c; color: #a0a0a0; border: 1px solid #505050; }"
    "QLabel#galleryTitle { color: #82be0f; font-weight: bold; font-size: 14px; }"
    "QLabel#galleryDescription { color: #a0a0a0; }"
    "QSlider#EditedWidget::handle:horizontal { background: #82be0f; }";

const char *GalleryWindow::styleSheetText()
{
    return kGalleryStyle;
}

GalleryWindow::GalleryWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_entries(GalleryEntries())
    , m_pageWidgets(m_entries.size(), nullptr)
{
    setWindowTitle(QStringLiteral("Vela Widgets Gallery"));
    setStyleSheet(QLatin1String(kGalleryStyle));

    auto *splitter = new QSplitter(this);
    m_list = new QListWidget(splitter);
    m_list->setMinimumWidth(290);
    auto *right = new QSplitter(Qt::Vertical, splitter);
    m_pages = new QStackedWidget(right);
    m_log = new QPlainTextEdit(right);
    m_log->setReadOnly(true);
    m_log->setMaximumBlockCount(500);
    m_log->setPlaceholderText(QStringLiteral("Signals of the widget on show appear here."));
    right->setStretchFactor(0, 3);
    right->setStretchFactor(1, 1);
    splitter->setStretchFactor(1, 1);
    setCentralWidget(splitter);

    QString group;
    for (int i = 0; i < m_entries.size(); ++i) {
        const GalleryEntry &entry = m_entries.at(i);
        if (entry.group != group) {
            group = entry.group;
            auto *header = new QListWidgetItem(group, m_list);
            header->setFlags(Qt::NoItemFlags);
            QFont font = header->font();
            font.setBold(true);
            header->setFont(font);
        }
        auto *item = new QListWidgetItem(QStringLiteral("   ") + entry.name, m_list);
        item->setData(Qt::UserRole, i);
        item->setToolTip(entry.description);
    }
    connect(m_list, &QListWidget::currentItemChanged, this, &GalleryWindow::showEntry);
    if (m_list->count() > 1)
        m_list->setCurrentRow(1);
    resize(1100, 720);
}

void GalleryWindow::showEntry(QListWidgetItem *item)
{
    if (!item || !item->data(Qt::UserRole).isValid())
        return;
    const int index = item->data(Qt::UserRole).toInt();
    if (!m_pageWidgets.at(index)) {
        m_pageWidgets[index] = createPage(m_entries.at(index));
        m_pages->addWidget(m_pageWidgets.at(index));
    }
    m_pages->setCurrentWidget(m_pageWidgets.at(index));
}

QWidget *GalleryWindow::createPage(const GalleryEntry &entry)
{
    auto *page = new QWidget;
    page->setObjectName(QStringLiteral("galleryPage"));
    auto *layout = new QVBoxLayout(page);
    auto *title = new QLabel(entry.name, page);
    title->setObjectName(QStringLiteral("galleryTitle"));
    auto *description = new QLabel(entry.description, page);
    description->setObjectName(QStringLiteral("galleryDescription"));
    description->setWordWrap(true);
    layout->addWidget(title);
    layout->addWidget(description);

    auto *scroll = new QScrollArea(page);
    scroll->setWidgetResizable(true);
    auto *holder = new QWidget;
    auto *holderLayout = new QVBoxLayout(holder);
    holderLayout->addWidget(entry.create(*this));
    holderLayout->addStretch(1);
    scroll->setWidget(holder);
    layout->addWidget(scroll, 1);
    return page;
}

bool GalleryWindow::writeWindowShot(const QString &file, const QString &pageName)
{
    for (int row = 0; row < m_list->count(); ++row) {
        const QVariant index = m_list->item(row)->data(Qt::UserRole);
        if (index.isValid() && m_entries.at(index.toInt()).name == pageName)
            m_list->setCurrentRow(row);
    }
    resize(1400, 1000);
    show();
    QApplication::processEvents();
    const QPixmap shot = grab();
    hide();
    return !shot.isNull() && shot.save(file);
}

QString GalleryWindow::sampleDir() const
{
    return m_samples.path();
}

void GalleryWindow::log(const QString &line)
{
    m_log->appendPlainText(QTime::currentTime().toString(QStringLiteral("HH:mm:ss.zzz  ")) + line);
}

QWidget *GalleryWindow::mainWindow() const
{
    return const_cast<GalleryWindow *>(this);
}

int GalleryWindow::writeScreenshots(const QString &dir, const QString &suffix)
{
    QDir().mkpath(dir);
    int failures = 0;
    for (const GalleryEntry &entry : qAsConst(m_entries)) {
        // Each picture: the widget with its name, on the host's dark background.
        QWidget frame;
        frame.setObjectName(QStringLiteral("galleryShot"));
        frame.setAttribute(Qt::WA_StyledBackground);
        frame.setStyleSheet(QLatin1String(kGalleryStyle));
        auto *layout = new QVBoxLayout(&frame);
        auto *title = new QLabel(entry.name, &frame);
        title->setObjectName(QStringLiteral("galleryTitle"));
        layout->addWidget(title);
        layout->addWidget(entry.create(*this), 1);
        frame.resize(frame.sizeHint().expandedTo(QSize(360, 120)).boundedTo(QSize(1200, 900)));
        frame.show();
        QApplication::processEvents();
        const QPixmap shot = frame.grab();
        const QString file = QDir(dir).filePath(entry.name + suffix + QStringLiteral(".png"));
        if (shot.isNull() || !shot.save(file))
            ++failures;
    }
    return failures;
}
