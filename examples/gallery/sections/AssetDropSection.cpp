// Asset browsing: a list and a table that take files dragged in from the file manager through a
// gallery-side interface, and a grid of selectable texture thumbnails.
#include "GalleryRegistry.h"

#include "QDragDropListWidget.h"
#include "QDragDropTableWidget.h"
#include "QItemLabel.h"
#include "VelaImageLoader.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <cmath>

static const char kGroup[] = "Lists and containers";

namespace {

// The list marks the item under a file drag with this role.
constexpr int kDropTargetRole = Qt::UserRole + 10;
constexpr int kThumbnailSize = 40;

// --- Sample textures, painted by the gallery and written to its sample folder. -------------

QImage paintBark(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor(92, 62, 40));
    QPainter painter(&image);
    QRandomGenerator random(7);
    for (int i = 0; i < size.width() / 3; ++i) {
        const int x = random.bounded(size.width());
        painter.setPen(QPen(QColor(60 + random.bounded(40), 40 + random.bounded(20), 25),
                            1 + random.bounded(3)));
        painter.drawLine(x, 0, x + random.bounded(9) - 4, size.height());
    }
    return image;
}

QImage paintNormalMap(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const double bumpX = std::sin(x * 0.35) * 40.0;
            const double bumpY = std::cos(y * 0.35) * 40.0;
            image.setPixelColor(x, y, QColor(128 + int(bumpX), 128 + int(bumpY), 235));
        }
    }
    return image;
}

QImage paintIris(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor(235, 232, 226));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre(size.width() / 2.0, size.height() / 2.0);
    const qreal radius = size.width() * 0.38;
    QRadialGradient iris(centre, radius);
    iris.setColorAt(0.0, QColor(20, 20, 20));
    iris.setColorAt(0.3, QColor(20, 20, 20));
    iris.setColorAt(0.35, QColor(70, 130, 90));
    iris.setColorAt(0.9, QColor(40, 80, 60));
    iris.setColorAt(1.0, QColor(25, 40, 30));
    painter.setPen(Qt::NoPen);
    painter.setBrush(iris);
    painter.drawEllipse(centre, radius, radius);
    return image;
}

QImage paintChecker(const QSize &size, const QColor &a, const QColor &b)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    const int cell = qMax(4, size.width() / 8);
    for (int y = 0; y < size.height(); y += cell) {
        for (int x = 0; x < size.width(); x += cell)
            painter.fillRect(x, y, cell, cell, ((x + y) / cell) % 2 ? a : b);
    }
    return image;
}

QImage paintSkin(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    QLinearGradient gradient(0, 0, size.width(), size.height());
    gradient.setColorAt(0.0, QColor(236, 196, 170));
    gradient.setColorAt(1.0, QColor(196, 140, 120));
    QPainter painter(&image);
    painter.fillRect(image.rect(), gradient);
    QRandomGenerator random(11);
    painter.setPen(QColor(180, 120, 100));
    for (int i = 0; i < size.width() * 2; ++i)
        painter.drawPoint(random.bounded(size.width()), random.bounded(size.height()));
    return image;
}

struct SampleTexture
{
    const char *file;
    QImage (*paint)(const QSize &);
};

QImage paintClothMask(const QSize &size)
{
    return paintChecker(size, QColor(30, 30, 30), QColor(220, 220, 220));
}

const SampleTexture kSampleTextures[] = {
    { "bark_diffuse.png", paintBark }, { "skin_normal.png", paintNormalMap },
    { "eye_iris.png", paintIris },     { "cloth_mask.png", paintClothMask },
    { "face_diffuse.png", paintSkin },
};

// Writes the sample textures (once) and returns their paths.
QStringList sampleTextures(GalleryContext &ctx)
{
    QStringList paths;
    const QDir dir(ctx.sampleDir());
    for (const SampleTexture &texture : kSampleTextures) {
        const QString path = dir.filePath(QLatin1String(texture.file));
        if (!QFileInfo::exists(path))
            texture.paint(QSize(128, 128)).save(path, "PNG");
        paths << path;
    }
    return paths;
}

void writeSampleMeshes(GalleryContext &ctx)
{
    for (const char *name : { "hero.fbx", "villain.fbx", "crowd_male.obj" }) {
        QFile file(QDir(ctx.sampleDir()).filePath(QLatin1String(name)));
        if (!file.exists() && file.open(QIODevice::WriteOnly))
            file.write("# sample mesh written by the gallery\n");
    }
}

// --- What the gallery accepts, and how it shows a file. ---------------------------------------

bool isMesh(const QString &file)
{
    const QString suffix = QFileInfo(file).suffix().toLower();
    return suffix == QLatin1String("fbx") || suffix == QLatin1String("obj");
}

bool isTexture(const QString &file)
{
    return Vela::IsReadableImageSuffix(QFileInfo(file).suffix());
}

QIcon meshIcon()
{
    QPixmap pixmap(kThumbnailSize, kThumbnailSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(130, 190, 15), 1.5));
    const QPolygonF front({ { 8, 14 }, { 26, 14 }, { 26, 32 }, { 8, 32 } });
    painter.drawPolygon(front);
    painter.drawPolygon(front.translated(6, -6));
    for (const QPointF &corner : front)
        painter.drawLine(corner, corner + QPointF(6, -6));
    return QIcon(pixmap);
}

// The thumbnail of an image file, read the way the library reads files from outside.
QPixmap textureThumbnail(const QString &file, int size)
{
    QImage image;
    if (!Vela::LoadImageFile(file, image))
        return QPixmap();
    return QPixmap::fromImage(
        image.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

QIcon fileIcon(const QString &file)
{
    if (isMesh(file))
        return meshIcon();
    const QPixmap thumbnail = textureThumbnail(file, kThumbnailSize);
    return thumbnail.isNull() ? QIcon() : QIcon(thumbnail);
}

QString fileNames(const QList<QString> &files)
{
    QStringList names;
    for (const QString &file : files)
        names << QFileInfo(file).fileName();
    return names.join(QStringLiteral(", "));
}

// Outlines the item a file would be dropped on.
class DropTargetDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        if (index.data(kDropTargetRole).toBool()) {
            painter->save();
            painter->setPen(QPen(QColor(0x82, 0xbe, 0x0f), 2));
            painter->drawRect(QRectF(option.rect).adjusted(1, 1, -1, -1));
            painter->restore();
        }
    }
};

// --- The asset list: meshes and textures. Locked entries (user value -1) take no files. ------

class AssetListDrops : public QObject, public QDragDropListWidgetInterface
{
public:
    AssetListDrops(QListWidget *list, GalleryContext &ctx)
        : QObject(list)
        , m_list(list)
        , m_ctx(ctx)
    { }

    void AddAsset(const QString &file)
    {
        auto *item = new QListWidgetItem(fileIcon(file), QFileInfo(file).fileName(), m_list);
        item->setData(Qt::UserRole, m_list->count());
        item->setToolTip(file);
    }

    bool CanDragEnter(QList<QString> kFiles) override
    {
        const bool bAny = std::any_of(kFiles.begin(), kFiles.end(), &isAsset);
        m_ctx.log(QStringLiteral("List CanDragEnter(%1) → %2")
                      .arg(fileNames(kFiles), bAny ? "true" : "false"));
        return bAny;
    }

    bool CanDropFile(QString strFile, QListWidgetItem *pItem) override
    {
        pItem->setData(kDropTargetRole, false);
        const bool bTaken = isAsset(strFile);
        if (bTaken) {
            pItem->setIcon(fileIcon(strFile));
            pItem->setText(QFileInfo(strFile).fileName());
            pItem->setToolTip(strFile);
        }
        m_ctx.log(QStringLiteral("List CanDropFile(%1) on \"%2\" → %3")
                      .arg(QFileInfo(strFile).fileName(), pItem->text(),
                           bTaken ? "replaced" : "refused"));
        return bTaken;
    }

    bool CanDropFileList(QList<QString> kFiles) override
    {
        int nAdded = 0;
        for (const QString &file : kFiles) {
            if (isAsset(file)) {
                AddAsset(file);
                ++nAdded;
            }
        }
        m_ctx.log(QStringLiteral("List CanDropFileList(%1) → %2 added")
                      .arg(fileNames(kFiles))
                      .arg(nAdded));
        return nAdded > 0;
    }

    void MouseRButtonRelease() override
    {
        m_ctx.log(QStringLiteral("List MouseRButtonRelease: the host's context menu opens here"));
    }

private:
    static bool isAsset(const QString &file) { return isMesh(file) || isTexture(file); }

    QListWidget *m_list;
    GalleryContext &m_ctx;
};

// --- The character table: one row per character, a mesh and a texture each. -----------------

enum CharacterColumn { NameColumn, MeshColumn, TextureColumn };

class CharacterTableDrops : public QObject, public QDragDropTableWidgetInterface
{
public:
    CharacterTableDrops(QTableWidget *table, GalleryContext &ctx)
        : QObject(table)
        , m_table(table)
        , m_ctx(ctx)
    { }

    void AddCharacter(const QString &mesh, const QString &texture)
    {
        const int row = m_table->rowCount();
        m_table->insertRow(row);
        auto *name = new QTableWidgetItem(QFileInfo(mesh).baseName());
        name->setFlags(name->flags() & ~Qt::ItemIsEditable);
        m_table->setItem(row, NameColumn, name);
        m_table->setItem(row, MeshColumn, fileItem(mesh));
        m_table->setItem(row, TextureColumn,
                         texture.isEmpty() ? new QTableWidgetItem : fileItem(texture));
    }

    bool CanDragEnter(QList<QString> kFiles) override
    {
        const bool bAny = std::any_of(kFiles.begin(), kFiles.end(),
                                      [](const QString &f) { return isMesh(f) || isTexture(f); });
        m_ctx.log(QStringLiteral("Table CanDragEnter(%1) → %2")
                      .arg(fileNames(kFiles), bAny ? "true" : "false"));
        return bAny;
    }

    bool CanDropFile(QString strFile, QTableWidgetItem *pItem) override
    {
        const bool bTaken = (pItem->column() == MeshColumn && isMesh(strFile))
            || (pItem->column() == TextureColumn && isTexture(strFile));
        if (bTaken) {
            const QTableWidgetItem replacement = *fileItem(strFile);
            pItem->setText(replacement.text());
            pItem->setIcon(replacement.icon());
            pItem->setToolTip(strFile);
        }
        m_ctx.log(QStringLiteral("Table CanDropFile(%1) on row %2, column %3 → %4")
                      .arg(QFileInfo(strFile).fileName())
                      .arg(pItem->row())
                      .arg(pItem->column())
                      .arg(bTaken ? "replaced" : "refused"));
        return bTaken;
    }

    bool CanDropFileList(QList<QString> kFiles) override
    {
        int nAdded = 0;
        for (const QString &file : kFiles) {
            if (isMesh(file)) {
                AddCharacter(file, QString());
                ++nAdded;
            }
        }
        m_ctx.log(QStringLiteral("Table CanDropFileList(%1) → %2 characters added")
                      .arg(fileNames(kFiles))
                      .arg(nAdded));
        return nAdded > 0;
    }

    void MouseRButtonRelease() override
    {
        m_ctx.log(QStringLiteral("Table MouseRButtonRelease: the host's context menu opens here"));
    }

private:
    static QTableWidgetItem *fileItem(const QString &file)
    {
        auto *item = new QTableWidgetItem(fileIcon(file), QFileInfo(file).fileName());
        item->setFlags(item->flags() & ~Qt::ItemIsEditable);
        item->setToolTip(file);
        return item;
    }

    QTableWidget *m_table;
    GalleryContext &m_ctx;
};

const char kViewStyle[] = "QListWidget, QTableWidget { background: #1c1c1c; color: #d0d0d0;"
                          " border: 1px solid #505050; }"
                          "QHeaderView::section { background: #282828; color: #a0a0a0;"
                          " border: none; padding: 3px; }";

} // namespace

GALLERY_ENTRY(
    { 80, kGroup, "QDragDropListWidget",
      "An asset list that takes meshes and images dragged in from the file manager: drop on "
      "empty space to add them, on an entry to replace its file. The gallery's interface decides "
      "every drop; the locked default entry refuses files. A right-click never changes the "
      "selection.",
      [](GalleryContext &ctx) -> QWidget * {
          const QStringList textures = sampleTextures(ctx);
          writeSampleMeshes(ctx);
          auto *page = new QWidget;
          auto *layout = new QVBoxLayout(page);
          auto *list = new QDragDropListWidget(page);
          list->setStyleSheet(QLatin1String(kViewStyle));
          list->setAcceptDrops(true);
          list->setDragDropMode(QAbstractItemView::DropOnly);
          list->setIconSize(QSize(kThumbnailSize, kThumbnailSize));
          list->setItemDelegate(new DropTargetDelegate(list));
          list->setMinimumSize(320, 300);

          auto *drops = new AssetListDrops(list, ctx);
          list->SetInterface(drops);
          auto *locked = new QListWidgetItem(
              QIcon(QPixmap::fromImage(paintChecker(QSize(kThumbnailSize, kThumbnailSize),
                                                    QColor(80, 80, 80), QColor(50, 50, 50)))),
              QStringLiteral("Default material (locked)"), list);
          locked->setData(Qt::UserRole, -1);
          const QDir dir(ctx.sampleDir());
          drops->AddAsset(dir.filePath(QStringLiteral("hero.fbx")));
          for (const QString &texture : textures.mid(0, 4))
              drops->AddAsset(texture);
          list->setCurrentRow(1);

          layout->addWidget(list);
          layout->addWidget(new QLabel(QStringLiteral("Sample files to drag in: %1")
                                           .arg(QDir::toNativeSeparators(ctx.sampleDir()))));
          return page;
      } })

GALLERY_ENTRY(
    { 80, kGroup, "QDragDropTableWidget",
      "A character table: drop a mesh on the Mesh column or an image on the Texture column to "
      "replace it, or meshes below the rows to add characters. The gallery's interface decides.",
      [](GalleryContext &ctx) -> QWidget * {
          const QStringList textures = sampleTextures(ctx);
          writeSampleMeshes(ctx);
          auto *page = new QWidget;
          auto *layout = new QVBoxLayout(page);
          auto *table = new QDragDropTableWidget(page);
          table->setStyleSheet(QLatin1String(kViewStyle));
          table->setAcceptDrops(true);
          table->setDragDropMode(QAbstractItemView::DropOnly);
          table->setColumnCount(3);
          table->setHorizontalHeaderLabels(
              { QStringLiteral("Character"), QStringLiteral("Mesh"), QStringLiteral("Texture") });
          table->verticalHeader()->hide();
          table->horizontalHeader()->setStretchLastSection(true);
          table->setIconSize(QSize(24, 24));
          table->setSelectionBehavior(QAbstractItemView::SelectRows);
          table->setMinimumSize(460, 220);

          auto *drops = new CharacterTableDrops(table, ctx);
          table->SetInterface(drops);
          const QDir dir(ctx.sampleDir());
          drops->AddCharacter(dir.filePath(QStringLiteral("hero.fbx")), textures.at(4));
          drops->AddCharacter(dir.filePath(QStringLiteral("villain.fbx")), textures.at(0));
          drops->AddCharacter(dir.filePath(QStringLiteral("crowd_male.obj")), QString());
          table->resizeColumnsToContents();
          table->resizeRowsToContents();
          table->selectRow(0);

          layout->addWidget(table);
          return page;
      } })

GALLERY_ENTRY(
    { 80, kGroup, "QItemLabel",
      "Texture slots: a click selects a slot (three-line frame), hovering shows the hover "
      "frame, "
      "a double-click opens a file dialog and dropping one image file replaces the picture.",
      [](GalleryContext &ctx) -> QWidget * {
          const QStringList textures = sampleTextures(ctx);
          auto *page = new QWidget;
          auto *grid = new QGridLayout(page);
          grid->setHorizontalSpacing(14);
          QList<QItemLabel *> labels;
          const QStringList slotNames = { QStringLiteral("Bark"), QStringLiteral("Normal"),
                                          QStringLiteral("Iris"), QStringLiteral("Mask"),
                                          QStringLiteral("Face") };
          const QString filter = QStringLiteral("png jpg jpeg tga bmp tif tiff");
          for (int i = 0; i < slotNames.size(); ++i) {
              auto *label = new QItemLabel;
              label->setFixedSize(72, 72);
              label->setScaledContents(true);
              label->setAcceptDrops(true);
              label->SetLineWidth(2.0);
              label->SetFileFilter(filter);
              label->setPixmap(textureThumbnail(textures.at(i), 72));
              label->SetGetOpenFileNameFunctor([&ctx, label] {
                  return QFileDialog::getOpenFileName(label, QStringLiteral("Load texture"),
                                                      ctx.sampleDir(),
                                                      QStringLiteral("Images (*.png *.jpg *.jpeg "
                                                                     "*.tga *.bmp *.tif *.tiff)"));
              });
              label->SetSpecialThumbnailFunctor(
                  [](QString strPath) { return textureThumbnail(strPath, 72); });
              labels << label;
              const QString name = slotNames.at(i);
              QObject::connect(label, &QItemLabel::clicked, page,
                               [&ctx, name] { ctx.log(name + QStringLiteral(": clicked")); });
              QObject::connect(label, &QItemLabel::PreImageLoaded, page,
                               [&ctx, name](const QString &path) {
                                   ctx.log(name + QStringLiteral(": PreImageLoaded ")
                                           + QFileInfo(path).fileName());
                               });
              QObject::connect(label, &QItemLabel::RightDoubleClicked, page,
                               [&ctx, name](QMouseEvent *) {
                                   ctx.log(name + QStringLiteral(": RightDoubleClicked"));
                               });
              grid->addWidget(label, 0, i, Qt::AlignCenter);
              auto *caption = new QLabel(name);
              caption->setAlignment(Qt::AlignCenter);
              grid->addWidget(caption, 1, i);
          }
          // One slot selected at a time: the grid deselects the others.
          for (QItemLabel *label : labels) {
              QObject::connect(label, &QItemLabel::SelectedChanged, page, [label, labels] {
                  if (!label->GetSelected())
                      return;
                  for (QItemLabel *other : labels) {
                      if (other != label)
                          other->SetSelected(false);
                  }
              });
          }
          labels.at(1)->SetSelected(true);
          grid->setColumnStretch(slotNames.size(), 1);
          return page;
      } })
