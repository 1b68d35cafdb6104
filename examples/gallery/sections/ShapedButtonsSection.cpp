// Image-shaped buttons: a lone pair with forwarded clicks, the face-region picker and the
// exclusive tool bar.
#include "GalleryRegistry.h"

#include "QKdPickContainer.h"
#include "QTransToolBtn.h"
#include "QVelaContainer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>

#include <memory>

namespace {

const QColor kGreen(0x82, 0xbe, 0x0f);

// An ellipse filling size on a transparent ground, as the host's region images are.
QPixmap ellipse(const QSize &size, const QColor &fill, const QColor &outline)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(outline, 1.5));
    painter.setBrush(fill);
    painter.drawEllipse(QRectF(pixmap.rect()).adjusted(1, 1, -1, -1));
    return pixmap;
}

// Normal and hovered (Selected) images, unchecked (Off) and checked (On).
QIcon regionIcon(const QSize &size)
{
    QIcon icon;
    icon.addPixmap(ellipse(size, QColor(80, 80, 80, 150), QColor(160, 160, 160)), QIcon::Normal,
                   QIcon::Off);
    icon.addPixmap(ellipse(size, QColor(130, 130, 130, 170), Qt::white), QIcon::Selected,
                   QIcon::Off);
    icon.addPixmap(ellipse(size, QColor(0x82, 0xbe, 0x0f, 170), kGreen), QIcon::Normal, QIcon::On);
    icon.addPixmap(ellipse(size, QColor(0xa0, 0xe0, 0x30, 200), Qt::white), QIcon::Selected,
                   QIcon::On);
    return icon;
}

QTransToolBtn *regionButton(QWidget *parent, const QString &name, const QRect &geometry)
{
    auto *button = new QTransToolBtn(parent);
    button->setObjectName(name);
    button->setToolTip(name);
    button->setCheckable(true);
    button->setGeometry(geometry);
    button->setIconSize(geometry.size());
    button->setIcon(regionIcon(geometry.size()));
    // Moves over the button then reach its container, which repaints the hover images.
    button->setMouseTracking(true);
    return button;
}

// The six images of one state: normal, hovered, pressed; then the same checked. Each shows a
// round tool face with its label.
QVector<std::shared_ptr<QPixmap>> toolState(const QSize &size, const QString &label)
{
    const QColor fills[6] = { QColor(0x50, 0x50, 0x50),
                              QColor(0x68, 0x68, 0x68),
                              QColor(0x38, 0x38, 0x38),
                              kGreen.darker(130),
                              kGreen,
                              kGreen.darker(170) };
    QVector<std::shared_ptr<QPixmap>> state;
    for (const QColor &fill : fills) {
        auto pixmap = std::make_shared<QPixmap>(ellipse(size, fill, QColor(0x1c, 0x1c, 0x1c)));
        QPainter painter(pixmap.get());
        painter.setPen(fill.lightness() > 120 ? QColor(0x1c, 0x1c, 0x1c)
                                              : QColor(0xd0, 0xd0, 0xd0));
        painter.drawText(pixmap->rect(), Qt::AlignCenter, label);
        state.append(pixmap);
    }
    return state;
}

// A plain parent that forwards clicks to its shaped buttons, the way a host's own panel would.
class ForwardingPanel : public QWidget
{
public:
    explicit ForwardingPanel(GalleryContext &ctx)
        : m_ctx(ctx)
    { }

protected:
    void mouseReleaseEvent(QMouseEvent *event) override
    {
        for (QTransToolBtn *button : findChildren<QTransToolBtn *>()) {
            const QString name = event->button() == Qt::LeftButton
                ? button->DoMouseClickAction(event->globalPos())
                : button->DoMouseRightClickAction(event->globalPos());
            if (!name.isEmpty()) {
                m_ctx.log(QStringLiteral("%1 click on \"%2\", now %3")
                              .arg(event->button() == Qt::LeftButton ? "Left" : "Right", name,
                                   button->isChecked() ? "checked" : "unchecked"));
                return;
            }
        }
        m_ctx.log(QStringLiteral("Click beside the shapes"));
    }
    void mouseMoveEvent(QMouseEvent *event) override
    {
        for (QTransToolBtn *button : findChildren<QTransToolBtn *>())
            button->DoMouseMoveAction(event->globalPos());
    }

private:
    GalleryContext &m_ctx;
};

QString joined(const std::vector<QString> &names)
{
    QStringList list;
    for (const QString &name : names)
        list << name;
    return list.join(QStringLiteral(", "));
}

// Sends a click to the container at pos, as the pointer would.
void clickAt(QWidget *container, const QPoint &pos)
{
    const QPoint global = container->mapToGlobal(pos);
    QMouseEvent press(QEvent::MouseButtonPress, pos, global, Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(container, &press);
    QMouseEvent release(QEvent::MouseButtonRelease, pos, global, Qt::LeftButton, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(container, &release);
}

} // namespace

GALLERY_ENTRY({ 10, "Basic controls", "QTransToolBtn",
                "Buttons shaped by their images: only opaque pixels belong to them. They leave "
                "clicks to their parent; here a plain panel forwards them with "
                "DoMouseClickAction (left) and DoMouseRightClickAction (right). The left button "
                "draws its icon, the right one a multi-state pixmap set.",
                [](GalleryContext &ctx) -> QWidget * {
                    auto *panel = new ForwardingPanel(ctx);
                    panel->setMouseTracking(true);
                    panel->setMinimumSize(260, 120);
                    QTransToolBtn *iconButton =
                        regionButton(panel, QStringLiteral("Left cheek"), QRect(10, 10, 140, 100));
                    iconButton->setChecked(true);
                    auto *stateButton = new QTransToolBtn(panel);
                    stateButton->setObjectName(QStringLiteral("Sculpt"));
                    stateButton->setCheckable(true);
                    stateButton->setGeometry(120, 15, 90, 90);
                    stateButton->AddStatusPixmap(
                        toolState(QSize(90, 90), QStringLiteral("Sculpt")));
                    stateButton->AddStatusPixmap(
                        toolState(QSize(90, 90), QStringLiteral("Smooth")));
                    stateButton->SetCurrState(1);
                    stateButton->setMouseTracking(true);
                    return panel;
                } })

GALLERY_ENTRY(
    { 60, "Facial key tables and picking", "QKdPickContainer",
      "A face-region picker: overlapping ellipse-shaped buttons whose transparent "
      "surroundings let clicks through to the region behind. Earlier regions win where "
      "they overlap; the last selected region stays selected.",
      [](GalleryContext &ctx) -> QWidget * {
          auto *page = new QWidget;
          page->setStyleSheet(QStringLiteral("QCheckBox { color: #d0d0d0; }"));
          auto *layout = new QVBoxLayout(page);
          auto *picker = new QKdPickContainer(page);
          picker->setObjectName(QStringLiteral("facePicker"));
          picker->setFixedSize(240, 300);
          picker->setStyleSheet(QStringLiteral("QKdPickContainer#facePicker { background: #1c1c1c; "
                                               "border: 1px solid #505050; border-radius: 6px; }"));

          // The head's outline lies under the regions; the picker ignores it.
          auto *outline = new QLabel(picker);
          outline->setPixmap(ellipse(QSize(200, 290), Qt::transparent, QColor(0x50, 0x50, 0x50)));
          outline->setGeometry(20, 5, 200, 290);
          // Child order decides overlaps: the features first, the broad areas last.
          regionButton(picker, QStringLiteral("LeftEye"), QRect(58, 100, 52, 30));
          regionButton(picker, QStringLiteral("RightEye"), QRect(130, 100, 52, 30));
          regionButton(picker, QStringLiteral("LeftBrow"), QRect(50, 70, 66, 34));
          regionButton(picker, QStringLiteral("RightBrow"), QRect(124, 70, 66, 34));
          regionButton(picker, QStringLiteral("Nose"), QRect(100, 112, 40, 76));
          regionButton(picker, QStringLiteral("Mouth"), QRect(78, 200, 84, 40));
          regionButton(picker, QStringLiteral("LeftCheek"), QRect(34, 130, 76, 80));
          regionButton(picker, QStringLiteral("RightCheek"), QRect(130, 130, 76, 80));
          regionButton(picker, QStringLiteral("Jaw"), QRect(62, 222, 116, 64));
          regionButton(picker, QStringLiteral("Forehead"), QRect(50, 12, 140, 66));
          picker->SetCursor(QCursor(Qt::PointingHandCursor));
          picker->setTransToolBtnState(QStringLiteral("Mouth"), true);
          picker->setTransToolBtnState(QStringLiteral("LeftBrow"), true);

          auto *single = new QCheckBox(QStringLiteral("Single select"), page);
          auto *keepLast = new QCheckBox(QStringLiteral("Keep the last one"), page);
          keepLast->setChecked(true);
          layout->addWidget(picker);
          layout->addWidget(single);
          layout->addWidget(keepLast);
          QObject::connect(single, &QCheckBox::toggled, picker, &QKdPickContainer::SetSingleSelect);
          QObject::connect(keepLast, &QCheckBox::toggled, picker,
                           &QKdPickContainer::SetKeepLastOneBtn);
          QObject::connect(picker, &QKdPickContainer::UpdateToolBtnState, [&ctx, picker] {
              ctx.log(QStringLiteral("UpdateToolBtnState: picked %1 (%2), selected: %3")
                          .arg(picker->GetPickedBtnName(),
                               picker->GetPickedBtnState() ? "on" : "off",
                               joined(picker->GetSelectedBtnNames())));
          });
          return page;
      } })

GALLERY_ENTRY({ 80, "Lists, containers and layout", "QVelaContainer",
                "A tool bar of overlapping round buttons in exclusive mode: a click counts when "
                "press and release hit the same button, checking one unchecks the current one, "
                "and right clicks are reported apart.",
                [](GalleryContext &ctx) -> QWidget * {
                    auto *bar = new QVelaContainer;
                    bar->setObjectName(QStringLiteral("toolBar"));
                    bar->setFixedSize(300, 90);
                    bar->setStyleSheet(QStringLiteral(
                        "QVelaContainer#toolBar { background: #1c1c1c; border-radius: 8px; }"));
                    const QStringList tools { QStringLiteral("Grab"), QStringLiteral("Inflate"),
                                              QStringLiteral("Pinch"), QStringLiteral("Smooth") };
                    for (int i = 0; i < tools.size(); ++i) {
                        auto *button = new QTransToolBtn(bar);
                        button->setObjectName(tools.at(i));
                        button->setCheckable(true);
                        button->setGeometry(10 + i * 66, 5, 80, 80);
                        button->AddStatusPixmap(toolState(QSize(80, 80), tools.at(i)));
                        button->setMouseTracking(true);
                    }
                    bar->InitBtnMap(true);
                    bar->resize(bar->sizeHint());
                    // Start with the inflate tool, clicked once the buttons can be hit.
                    QTimer::singleShot(0, bar, [bar] { clickAt(bar, QPoint(116, 45)); });

                    QObject::connect(bar, &QVelaContainer::BtnClicked, [&ctx](QAbstractButton *b) {
                        ctx.log(QStringLiteral("BtnClicked(%1)").arg(b->objectName()));
                    });
                    QObject::connect(
                        bar, &QVelaContainer::BtnRightClicked, [&ctx](QAbstractButton *b) {
                            ctx.log(QStringLiteral("BtnRightClicked(%1)").arg(b->objectName()));
                        });
                    QObject::connect(
                        bar, &QVelaContainer::ChangeToolBtnState,
                        [&ctx](const QList<QString> &names, const QList<bool> &states) {
                            QStringList changes;
                            for (int i = 0; i < names.size(); ++i)
                                changes << names.at(i) + (states.value(i) ? " on" : " off");
                            ctx.log(QStringLiteral("ChangeToolBtnState: ")
                                    + changes.join(QStringLiteral(", ")));
                        });
                    QObject::connect(bar, &QVelaContainer::NoBtnClicked,
                                     [&ctx] { ctx.log(QStringLiteral("NoBtnClicked()")); });
                    return bar;
                } })
