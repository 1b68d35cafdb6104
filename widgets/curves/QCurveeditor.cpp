#include "QCurveeditor.h"

#include "CurvePaintingPrivate.h"

#include <QAction>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRegion>

#include <algorithm>
#include <cmath>
#include <cstring>

using namespace CurvePainting;

namespace {

// Margins of the drawing area: left, right and bottom; data y = 100 lies on the top edge.
constexpr int kMargin = 10;
constexpr float kScale = 0.01f;
constexpr int kPartCount = 3;
// The control point at this index is the end point of the default curve and never moves.
constexpr int kFixedEndPoint = 6;

const QList<QPoint> &DefaultCurve()
{
    static const QList<QPoint> kCurve = { QPoint(0, 0),   QPoint(34, 0),  QPoint(32, 80),
                                          QPoint(50, 80), QPoint(68, 80), QPoint(66, 0),
                                          QPoint(100, 0) };
    return kCurve;
}

// Canvas and curve image share the vertical mapping: data y = 0 on the baseline.
int CanvasY(int nHeight, int nDataY)
{
    return TruncToInt(float(nHeight) - float(nHeight - kMargin) * kScale * float(nDataY)
                      - float(kMargin));
}

QColor PartColor(int nPart)
{
    switch (nPart) {
    case 0:
        return QColor(255, 0, 64);
    case 1:
        return QColor(64, 0, 255);
    case 2:
        return QColor(64, 196, 32);
    default:
        return QColor(0, 0, 0);
    }
}

void ClampToDomain(QPoint &kPoint)
{
    kPoint.setX(std::max(0, std::min(100, kPoint.x())));
    kPoint.setY(std::max(0, std::min(100, kPoint.y())));
}

// The two-segment curve through a start point followed by (handle, handle, end) triples; a
// trailing remainder of fewer than three points is left out.
template<typename Mapping>
QPainterPath BezierPath(const QList<QPoint> &lstPoints, Mapping fnMap)
{
    QPainterPath kPath;
    if (lstPoints.isEmpty())
        return kPath;
    kPath.moveTo(fnMap(lstPoints.at(0)));
    for (int i = 1; i < lstPoints.size() - 2; i += 3)
        kPath.cubicTo(fnMap(lstPoints.at(i)), fnMap(lstPoints.at(i + 1)),
                      fnMap(lstPoints.at(i + 2)));
    return kPath;
}

} // namespace

QCurveEditor::QCurveEditor(QWidget *parent)
    : QWidget(parent)
{ }

QCurveEditor::~QCurveEditor() = default;

void QCurveEditor::Init()
{
    struct ActionDesc
    {
        QAction *QCurveEditor::*pkMember;
        const char *szText;
        Qt::Key eKey;
        void (QCurveEditor::*pfnSlot)();
    };
    static const ActionDesc kActions[] = {
        { &QCurveEditor::m_pkDividerNumAction, "DividerNum", Qt::Key_W,
          &QCurveEditor::OnDividerNum },
        { &QCurveEditor::m_pkShowDividerAction, "ShowDivider", Qt::Key_Q,
          &QCurveEditor::OnShowDivider },
        { &QCurveEditor::m_pkSymmetryAction, "Symmetry", Qt::Key_E, &QCurveEditor::OnSymmetry },
    };
    for (const ActionDesc &kDesc : kActions) {
        if (this->*kDesc.pkMember)
            continue; // a second Init keeps the actions it made the first time
        auto *pkAction = new QAction(QString::fromLatin1(kDesc.szText), this);
        pkAction->setShortcut(QKeySequence(Qt::CTRL | kDesc.eKey));
        pkAction->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(pkAction, &QAction::triggered, this, kDesc.pfnSlot);
        addAction(pkAction);
        this->*kDesc.pkMember = pkAction;
    }

    m_kCheckerPixmap = CheckerTile(32);

    InitAllPartsPoints();
}

QMap<int, QList<QPoint>> QCurveEditor::GetData() const
{
    return m_kCurveData;
}

void QCurveEditor::SetData(const QMap<int, QList<QPoint>> &kData)
{
    m_kCurveData = kData;
    update();
}

void QCurveEditor::SetWeighting(float fWeighting)
{
    m_fWeighting = fWeighting;
}

float QCurveEditor::GetCurveWeighting()
{
    return m_fWeighting;
}

void QCurveEditor::SetFinishedCallback(std::function<void()> fnCallback)
{
    m_fnFinishedCallback = std::move(fnCallback);
}

int QCurveEditor::GetPart()
{
    return m_nPart;
}

void QCurveEditor::OnDividerNum()
{
    m_nDividerNum = m_nDividerNum < 11 ? m_nDividerNum + 2 : 2;
    update();
}

void QCurveEditor::OnShowDivider()
{
    m_bShowDivider = !m_bShowDivider;
    update();
}

void QCurveEditor::OnSymmetry()
{
    m_bSymmetry = !m_bSymmetry;
}

void QCurveEditor::OnReset()
{
    InitPoints();
    update();
    EmitFinished();
}

void QCurveEditor::OnChangePart()
{
    m_nPart = (m_nPart + 1) % kPartCount;
    update();
}

void QCurveEditor::OnCurveWeighting(double fValue)
{
    m_fWeighting = static_cast<float>(std::min(1.0, std::max(0.0, fValue)));
    EmitFinished();
}

void QCurveEditor::paintEvent(QPaintEvent *)
{
    const int nWidth = width();
    const int nHeight = height();
    QPainter kPainter(this);

    if (!m_kCheckerPixmap.isNull())
        kPainter.drawTiledPixmap(rect(), m_kCheckerPixmap);
    kPainter.drawRoundedRect(QRect(0, 0, nWidth - 1, nHeight - 1), 0, 0);

    QPainterPath kBaseline;
    kBaseline.moveTo(kMargin, nHeight - kMargin);
    kBaseline.lineTo(nWidth - kMargin, nHeight - kMargin);
    kPainter.strokePath(kBaseline, LinePen(QColor(32, 32, 32), 2.0));

    const QList<QPoint> lstPoints = m_kCurveData.value(m_nPart);
    kPainter.setPen(LinePen(Qt::black, 1.0));
    kPainter.setBrush(QColor(64, 64, 64, 196));
    for (const QPoint &kPoint : lstPoints)
        kPainter.drawEllipse(ConvertToCanvasPos(kPoint), 10, 10);
    kPainter.setBrush(Qt::NoBrush);

    if (!lstPoints.isEmpty()) {
        const QPainterPath kCurve = BezierPath(
            lstPoints, [this](const QPoint &kPoint) { return ConvertToCanvasPos(kPoint); });
        kPainter.strokePath(kCurve, LinePen(PartColor(m_nPart), 2.0));
    }

    if (m_bShowDivider && m_nDividerNum > 0) {
        kPainter.setPen(LinePen(Qt::black, 1.0));
        const int nStep = (nWidth - 2 * kMargin) / m_nDividerNum;
        for (int i = 0; i <= m_nDividerNum; ++i) {
            const int nX = nStep * i + kMargin;
            kPainter.drawLine(nX, 0, nX, nHeight - kMargin);
        }
    }
}

void QCurveEditor::mousePressEvent(QMouseEvent *event)
{
    const auto it = m_kCurveData.constFind(m_nPart);
    if (it == m_kCurveData.constEnd() || it->isEmpty())
        return;
    const QList<QPoint> &lstPoints = *it;
    for (int i = 0; i < lstPoints.size(); ++i) {
        const QPoint kCanvas = ConvertToCanvasPos(lstPoints.at(i));
        const QRegion kHitArea(kCanvas.x() - 10, kCanvas.y() - 10, 20, 20, QRegion::Ellipse);
        if (kHitArea.contains(event->pos())) {
            m_nSelectedPoint = i;
            return;
        }
    }
}

void QCurveEditor::mouseMoveEvent(QMouseEvent *event)
{
    event->accept();
    if (event->buttons() != Qt::LeftButton)
        return;
    const int nSel = m_nSelectedPoint;
    if (nSel <= 0 || nSel == kFixedEndPoint)
        return;
    const auto it = m_kCurveData.find(m_nPart);
    if (it == m_kCurveData.end() || nSel >= it->size())
        return;
    QList<QPoint> &lstPoints = *it;
    const int nMirror = kFixedEndPoint - nSel;
    const bool bHasMirror = m_bSymmetry && nMirror >= 0 && nMirror < lstPoints.size();
    const QPoint kPos = event->pos();

    if (nSel == 3) {
        // The apex only moves up and down.
        lstPoints[nSel].setY(ConvertToDataPos(kPos).y());
    } else if (!m_bSymmetry) {
        lstPoints[nSel] = ConvertToDataPos(kPos);
    } else if (nSel < 3) {
        // The right-hand handle mirrors the left-hand one about the centre of the drawing.
        lstPoints[nSel] = ConvertToDataPos(kPos);
        if (bHasMirror)
            lstPoints[nMirror] = ConvertToDataPos(QPoint(width() - kPos.x() - 5, kPos.y()));
    }

    ClampToDomain(lstPoints[nSel]);
    if (bHasMirror)
        ClampToDomain(lstPoints[nMirror]);
    update();
}

void QCurveEditor::mouseReleaseEvent(QMouseEvent *)
{
    m_nSelectedPoint = -1;
    QImage kImage(width() - 2 * kMargin, height(), QImage::Format_Mono);
    GetCurveImage(kImage);
    EmitFinished();
}

void QCurveEditor::InitPoints()
{
    m_kCurveData[m_nPart] = DefaultCurve();
}

void QCurveEditor::InitAllPartsPoints()
{
    for (int nPart = 0; nPart < kPartCount; ++nPart) {
        QList<QPoint> &lstPoints = m_kCurveData[nPart];
        lstPoints.clear();
        lstPoints.append(DefaultCurve());
    }
}

QPoint QCurveEditor::ConvertToCanvasPos(const QPoint &kDataPos) const
{
    const float fX = float(width() - 2 * kMargin) * kScale * float(kDataPos.x()) + float(kMargin);
    return QPoint(TruncToInt(fX), CanvasY(height(), kDataPos.y()));
}

QPoint QCurveEditor::ConvertToCanvasPosForImage(const QPoint &kDataPos) const
{
    const float fX = float(width() - 2 * kMargin) * kScale * float(kDataPos.x());
    return QPoint(TruncToInt(fX), CanvasY(height(), kDataPos.y()));
}

QPoint QCurveEditor::ConvertToDataPos(const QPoint &kCanvasPos) const
{
    // x rounds up while y truncates; stored curves depend on this exact rounding.
    const float fX =
        std::ceil(float(kCanvasPos.x() - kMargin) / (float(width() - 2 * kMargin) * kScale));
    const float fY =
        float(height() - kMargin - kCanvasPos.y()) / (float(height() - kMargin) * kScale);
    return QPoint(TruncToInt(fX), TruncToInt(fY));
}

void QCurveEditor::GetCurveImage(QImage &kImage)
{
    if (kImage.isNull())
        return;
    std::memset(kImage.bits(), 0xFF, size_t(kImage.sizeInBytes()));
    const QPainterPath kCurve =
        BezierPath(m_kCurveData.value(m_nPart),
                   [this](const QPoint &kPoint) { return ConvertToCanvasPosForImage(kPoint); });
    QPainter kPainter(&kImage);
    kPainter.strokePath(kCurve, LinePen(Qt::black, 1.0));
}

int QCurveEditor::GetWeightingFromCurveImage(QImage &kImage, int nPercent)
{
    const int nHeight = kImage.height();
    if (nHeight < 1)
        return 0;
    const int nColumn = TruncToInt(float((kImage.width() - 1) * nPercent) * kScale);
    if (nColumn < 0 || nColumn >= kImage.width())
        return 0;
    for (int y = 0; y < nHeight; ++y) {
        const QRgb kPixel = kImage.pixel(nColumn, y);
        if (qRed(kPixel) == 0 && qGreen(kPixel) == 0 && qBlue(kPixel) == 0)
            return TruncToInt(float(nHeight - 11 - y) / float(nHeight) * 100.0f);
    }
    return 0;
}

void QCurveEditor::EmitFinished()
{
    if (m_fnFinishedCallback)
        m_fnFinishedCallback();
}
