#include "QKdFKModifyTableManager.h"

#include "CKdFKModifyCellWidget.h"

#include <QFileInfo>
#include <QMouseEvent>
#include <QSettings>

#include <iterator>

namespace {

const int kFirstColumnWidth = 370;
const int kCellRowHeight = 70;
// What an element of a range that is not a number stands for.
const int kNonNumericExtreme = 100;
// The facial-key file is a few kilobytes; anything far larger is not one and is not parsed.
const qint64 kMaxIniFileBytes = 4 * 1024 * 1024;

const char *const kSectionGroups[] = { "BrowModifyString", "EyeModifyString", "NoseModifyString",
                                       "MouthModifyString", "CustomModifyString" };

// Fills `kMap` with channel index -> expression id for `nCount` channels from `nFirstId` on.
void FillExpressionMap(QKdFKModifyTableManager::ExpressionMap &kMap, int nFirstId, int nCount)
{
    kMap.clear();
    for (int nIndex = 0; nIndex < nCount; ++nIndex)
        kMap[nIndex] = nFirstId + nIndex;
}

// Whether the path names a regular file small enough to be a facial-key file.
bool IsReadableIniFile(const QString &strIniPath)
{
    const QFileInfo kInfo(strIniPath);
    return !strIniPath.isEmpty() && kInfo.isFile() && kInfo.size() <= kMaxIniFileBytes;
}

bool IsHoverIndex(const QModelIndex &kIndex)
{
    return kIndex.row() >= 0 && kIndex.column() >= 0 && kIndex.model() != nullptr;
}

} // namespace

QKdFKModifyTableManager::QKdFKModifyTableManager(QWidget *parent)
    : QTableView(parent)
    , m_bSetValueOutside(false)
{
    // Plain moves over the cells must reach mouseMoveEvent for MouseEntered and MouseLeft.
    viewport()->setMouseTracking(true);
    InitModifySectionNumMap();
    InitBrowExpressionMap();
    InitEyeExpressionMap();
    InitNoseExpressionMap();
    InitMousthExpressionMap();
    InitCustomExpressionMap();
}

QKdFKModifyTableManager::~QKdFKModifyTableManager() = default;

void QKdFKModifyTableManager::InitManager(const QString &strIniPath)
{
    setColumnWidth(0, kFirstColumnWidth);

    int nRow = 0;
    for (int nSection = 0; nSection < int(m_kModifySectionNumMap.size()); ++nSection) {
        for (int nIndex = 0; nIndex < m_kModifySectionNumMap[nSection]; ++nIndex) {
            CKdFKModifyCellWidget *pkCell = new CKdFKModifyCellWidget(nullptr);
            QString strKey;
            const QString strLabel = GetSectionModifyString(strIniPath, nSection, nIndex, strKey);
            const Vela::CArrayList<int> kSliderExtreme =
                GetExtreme(strIniPath, QStringLiteral("SliderExtreme"), strKey);
            const Vela::CArrayList<int> kSpinExtreme =
                GetExtreme(strIniPath, QStringLiteral("SpinBoxExtreme"), strKey);
            pkCell->SetItem(nRow, 0, strLabel, kSliderExtreme, kSpinExtreme, this);

            setRowHeight(nRow, kCellRowHeight);
            ++nRow;
            pkCell->setVisible(false);
        }
    }
}

void QKdFKModifyTableManager::UpdateSliderValues(CKdFKModifyCellWidget *pkCell)
{
    if (pkCell && !m_bSetValueOutside)
        emit ChangeCellSlider(pkCell->GetID());
}

void QKdFKModifyTableManager::BeginEditSlider(CKdFKModifyCellWidget *pkCell)
{
    if (pkCell && !m_bSetValueOutside)
        emit BeginChangeCellSlider(pkCell->GetID());
}

void QKdFKModifyTableManager::StopEditSlider(CKdFKModifyCellWidget *pkCell)
{
    if (pkCell && !m_bSetValueOutside)
        emit StopChangeCellSlider(pkCell->GetID());
}

void QKdFKModifyTableManager::RenameSlider(CKdFKModifyCellWidget *pkCell)
{
    // A rename is always the user's: it is reported even while values come from outside.
    if (pkCell)
        emit RenameCellSlider(pkCell->GetID());
}

std::wstring QKdFKModifyTableManager::GetName(int nIndex)
{
    Q_UNUSED(nIndex)
    return std::wstring();
}

float QKdFKModifyTableManager::GetWeight(int nIndex)
{
    Q_UNUSED(nIndex)
    return 0.0f;
}

void QKdFKModifyTableManager::GetWeights(Vela::CArrayList<float> &kWeights,
                                         Vela::CArrayList<float> &kCustomWeights,
                                         Vela::CArrayList<float> &kExtraWeights)
{
    Q_UNUSED(kCustomWeights)
    Q_UNUSED(kExtraWeights)
    // One weight per expression id of the four standard sections.
    const size_t nStandardIds = m_kBrowExpressionMap.size() + m_kEyeExpressionMap.size()
        + m_kNoseExpressionMap.size() + m_kMouthExpressionMap.size();
    kWeights.resize(nStandardIds, 0.0f);
}

void QKdFKModifyTableManager::SetWeights(const Vela::CArrayList<float> &kWeights,
                                         const Vela::CArrayList<float> &kCustomWeights,
                                         const Vela::CArrayList<float> &kExtraWeights)
{
    Q_UNUSED(kWeights)
    Q_UNUSED(kCustomWeights)
    Q_UNUSED(kExtraWeights)
    m_bSetValueOutside = false;
}

void QKdFKModifyTableManager::SetEnable(const Vela::CArrayList<bool> &kEnable,
                                        const Vela::CArrayList<bool> &kCustomEnable,
                                        const Vela::CArrayList<bool> &kExtraEnable)
{
    Q_UNUSED(kEnable)
    Q_UNUSED(kCustomEnable)
    Q_UNUSED(kExtraEnable)
    m_bSetValueOutside = false;
}

void QKdFKModifyTableManager::UpdateSliderNames(
    const Vela::CArrayList<std::pair<std::wstring, bool>> &kNames)
{
    Q_UNUSED(kNames)
}

void QKdFKModifyTableManager::UpdateSliderShowHide(int nSection, QString strFilter)
{
    Q_UNUSED(strFilter)
    ExpressionMap kExpressionMap;
    GetSectionConvertExpMap(ESection(nSection), kExpressionMap);
}

void QKdFKModifyTableManager::GetSectionConvertExpMap(ESection eSection,
                                                      ExpressionMap &kExpressionMap)
{
    switch (eSection) {
    case ESection_Brow:
        kExpressionMap = m_kBrowExpressionMap;
        break;
    case ESection_Eye:
        kExpressionMap = m_kEyeExpressionMap;
        break;
    case ESection_Nose:
        kExpressionMap = m_kNoseExpressionMap;
        break;
    case ESection_Mouth:
        kExpressionMap = m_kMouthExpressionMap;
        break;
    case ESection_Custom:
        kExpressionMap = m_kCustomExpressionMap;
        break;
    }
}

QString QKdFKModifyTableManager::GetSectionModifyString(const QString &strIniPath, int nSection,
                                                        int nIndex, QString &strKey)
{
    // A section outside 0..4 reads the keys of the whole file.
    const QString strGroup = nSection >= 0 && nSection < int(std::size(kSectionGroups))
        ? QString::fromLatin1(kSectionGroups[nSection])
        : QString();

    // A group with fewer keys than channels leaves the missing channels without a key.
    strKey.clear();
    if (!IsReadableIniFile(strIniPath))
        return QString();
    // The host's file is only ever read: a write or sync would rewrite (normalise) it.
    QSettings kSettings(strIniPath, QSettings::IniFormat, this);
    kSettings.setIniCodec("UTF-8");
    kSettings.beginGroup(strGroup);
    const QStringList kKeys = kSettings.allKeys();
    if (nIndex >= 0 && nIndex < kKeys.size())
        strKey = kKeys.at(nIndex);
    kSettings.endGroup();
    return QString();
}

Vela::CArrayList<int> QKdFKModifyTableManager::GetExtreme(const QString &strIniPath,
                                                          const QString &strGroup,
                                                          const QString &strKey)
{
    Vela::CArrayList<int> kExtreme;
    if (strKey.isEmpty() || !IsReadableIniFile(strIniPath))
        return kExtreme;

    QSettings kSettings(strIniPath, QSettings::IniFormat, this);
    kSettings.setIniCodec("UTF-8");
    kSettings.beginGroup(strGroup);
    // A range is a plain text list ("0, 100"). Anything else, such as an @Variant(...) value that
    // Qt decodes into another type or a lone number, is refused like a missing key.
    const QVariant kValue = kSettings.value(strKey);
    if (kValue.userType() == QMetaType::QStringList) {
        const QStringList kElements = kValue.toStringList();
        for (const QString &strElement : kElements) {
            bool bIsNumber = false;
            const int nValue = strElement.trimmed().toInt(&bIsNumber);
            kExtreme.push_back(bIsNumber ? nValue : kNonNumericExtreme);
        }
    }
    kSettings.endGroup();
    return kExtreme;
}

void QKdFKModifyTableManager::mouseMoveEvent(QMouseEvent *pkEvent)
{
    const QModelIndex kIndex = indexAt(pkEvent->pos());
    const bool bWasOver = IsHoverIndex(m_kLastHoverIndex);
    if (IsHoverIndex(kIndex)) {
        if (!bWasOver) {
            emit MouseEntered(kIndex);
            m_kLastHoverIndex = kIndex;
        } else if (kIndex != m_kLastHoverIndex) {
            emit MouseLeft(m_kLastHoverIndex);
            emit MouseEntered(kIndex);
            m_kLastHoverIndex = kIndex;
        }
    } else if (bWasOver) {
        emit MouseLeft(m_kLastHoverIndex);
        m_kLastHoverIndex = QModelIndex();
    }
    QAbstractItemView::mouseMoveEvent(pkEvent);
}

bool QKdFKModifyTableManager::focusNextPrevChild(bool bNext)
{
    Q_UNUSED(bNext)
    return false;
}

void QKdFKModifyTableManager::InitModifySectionNumMap()
{
    // The mouth has 39 channels but only 35 expression ids (25..59): both numbers are as the
    // facial rig defines them.
    m_kModifySectionNumMap.clear();
    m_kModifySectionNumMap[ESection_Brow] = 8;
    m_kModifySectionNumMap[ESection_Eye] = 7;
    m_kModifySectionNumMap[ESection_Nose] = 10;
    m_kModifySectionNumMap[ESection_Mouth] = 39;
    m_kModifySectionNumMap[ESection_Custom] = 64;
}

void QKdFKModifyTableManager::InitBrowExpressionMap()
{
    FillExpressionMap(m_kBrowExpressionMap, 0, 8);
}

void QKdFKModifyTableManager::InitEyeExpressionMap()
{
    FillExpressionMap(m_kEyeExpressionMap, 8, 7);
}

void QKdFKModifyTableManager::InitNoseExpressionMap()
{
    FillExpressionMap(m_kNoseExpressionMap, 15, 10);
}

void QKdFKModifyTableManager::InitMousthExpressionMap()
{
    FillExpressionMap(m_kMouthExpressionMap, 25, 35);
}

void QKdFKModifyTableManager::InitCustomExpressionMap()
{
    FillExpressionMap(m_kCustomExpressionMap, 64, 64);
}
