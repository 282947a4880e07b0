#pragma once
// A QWidget that hosts one Vorlex bar: it paints the control's surface, runs
// its timers on the Qt event loop and turns its events into signals. The
// control itself is reached through control() for anything the Qt surface
// below does not name.

#include <QColor>
#include <QFont>
#include <QString>
#include <QVariant>
#include <QWidget>
#include <memory>

#include "vorlex/Enums.h"

namespace vorlex {
class Vorlex;
class DiskService;
class ClockService;
}  // namespace vorlex

namespace vorlex::qt {

class VorlexWidget : public QWidget {
  Q_OBJECT
  // The form text of the control (blocks included), as the Designer saves it.
  Q_PROPERTY(QString formText READ formText WRITE setFormText DESIGNABLE true)
  Q_PROPERTY(QColor backColor READ backColor WRITE setBackColor)
  Q_PROPERTY(QColor foreColor READ foreColor WRITE setForeColor)
  Q_PROPERTY(int borderWidth READ borderWidth WRITE setBorderWidth)
  Q_PROPERTY(vxBorderStyleEnum borderStyle READ borderStyle WRITE setBorderStyle)
  Q_PROPERTY(int hMinValue READ hMinValue WRITE setHMinValue)
  Q_PROPERTY(int hMaxValue READ hMaxValue WRITE setHMaxValue)
  Q_PROPERTY(int vMinValue READ vMinValue WRITE setVMinValue)
  Q_PROPERTY(int vMaxValue READ vMaxValue WRITE setVMaxValue)
  Q_PROPERTY(vxBrushStyleEnum brushStyle READ brushStyle WRITE setBrushStyle)
  Q_PROPERTY(QColor brushColor READ brushColor WRITE setBrushColor)
  Q_PROPERTY(QString caption READ caption WRITE setCaption)
  Q_PROPERTY(vxAlignmentEnum captionAlignment READ captionAlignment WRITE setCaptionAlignment)
  Q_PROPERTY(int captionOffset READ captionOffset WRITE setCaptionOffset)
  Q_PROPERTY(int captionAngle READ captionAngle WRITE setCaptionAngle)
  Q_PROPERTY(vxAutoAngleEnum captionAutoAngle READ captionAutoAngle WRITE setCaptionAutoAngle)
  Q_PROPERTY(vxFont3DEnum captionFont3D READ captionFont3D WRITE setCaptionFont3D)
  Q_PROPERTY(QColor disabledColor READ disabledColor WRITE setDisabledColor)
  Q_PROPERTY(vxOrientationEnum orientation READ orientation WRITE setOrientation)
  Q_PROPERTY(bool redraw READ redraw WRITE setRedraw)
  Q_PROPERTY(int timerTimeInterval READ timerTimeInterval WRITE setTimerTimeInterval)
  Q_PROPERTY(bool timerTimeEnabled READ timerTimeEnabled WRITE setTimerTimeEnabled)
  Q_PROPERTY(int timerDiskInterval READ timerDiskInterval WRITE setTimerDiskInterval)
  Q_PROPERTY(bool timerDiskEnabled READ timerDiskEnabled WRITE setTimerDiskEnabled)
  Q_PROPERTY(vxRivetsStyleEnum rivetsStyle READ rivetsStyle WRITE setRivetsStyle)
  Q_PROPERTY(vxGradientStyleEnum gradientStyle READ gradientStyle WRITE setGradientStyle)
  Q_PROPERTY(QColor gradientColor READ gradientColor WRITE setGradientColor)
  Q_PROPERTY(QColor gradientColorEnd READ gradientColorEnd WRITE setGradientColorEnd)
  Q_PROPERTY(vxGradientGranularityEnum gradientGranularity READ gradientGranularity WRITE setGradientGranularity)
  Q_PROPERTY(vxAutoSizeEnum pictureAutoSize READ pictureAutoSize WRITE setPictureAutoSize)
  Q_PROPERTY(vxTileEnum pictureTile READ pictureTile WRITE setPictureTile)
  Q_PROPERTY(int pictureOffset READ pictureOffset WRITE setPictureOffset)
  Q_PROPERTY(vxAlignmentEnum pictureAlignment READ pictureAlignment WRITE setPictureAlignment)
  Q_PROPERTY(int blocks READ blocks WRITE setBlocks DESIGNABLE false)
  Q_PROPERTY(int indexBlock READ indexBlock WRITE setIndexBlock DESIGNABLE false)
  // Ambient UserMode: true in an application, false on a form being designed.
  Q_PROPERTY(bool userMode READ userMode WRITE setUserMode DESIGNABLE false)

 public:
  // The library's enumerations, under their own names and constants.
  enum vxAlignmentEnum {
    vxCenterCenter = vorlex::vxCenterCenter,
    vxCenterLeft = vorlex::vxCenterLeft,
    vxCenterRight = vorlex::vxCenterRight,
    vxTopCenter = vorlex::vxTopCenter,
    vxTopLeft = vorlex::vxTopLeft,
    vxTopRight = vorlex::vxTopRight,
    vxBottomCenter = vorlex::vxBottomCenter,
    vxBottomLeft = vorlex::vxBottomLeft,
    vxBottomRight = vorlex::vxBottomRight,
  };
  Q_ENUM(vxAlignmentEnum)
  enum vxAutoAngleEnum { vxNoneAuto = vorlex::vxNoneAuto, vxUp = vorlex::vxUp, vxDown = vorlex::vxDown };
  Q_ENUM(vxAutoAngleEnum)
  enum vxAutoSizeEnum {
    vxNoneAutoSize = vorlex::vxNoneAutoSize,
    vxWidthAutoSize = vorlex::vxWidthAutoSize,
    vxHeightAutoSize = vorlex::vxHeightAutoSize,
    vxBothAutoSize = vorlex::vxBothAutoSize,
  };
  Q_ENUM(vxAutoSizeEnum)
  enum vxBorderStyleEnum {
    vxNoneBorder = vorlex::vxNoneBorder,
    vxFlat = vorlex::vxFlat,
    vxRaised = vorlex::vxRaised,
    vxInset = vorlex::vxInset,
    vxEtched = vorlex::vxEtched,
    vxEtchedLight = vorlex::vxEtchedLight,
    vxBump = vorlex::vxBump,
    vxBumpLight = vorlex::vxBumpLight,
  };
  Q_ENUM(vxBorderStyleEnum)
  enum vxBrushStyleEnum {
    vxNoneBrush = vorlex::vxNoneBrush,
    vxHorizontal = vorlex::vxHorizontal,
    vxVertical = vorlex::vxVertical,
    vxForwardDiagonal = vorlex::vxForwardDiagonal,
    vxBackwardDiagonal = vorlex::vxBackwardDiagonal,
    vxCross = vorlex::vxCross,
    vxDiagonalCross = vorlex::vxDiagonalCross,
  };
  Q_ENUM(vxBrushStyleEnum)
  enum vxClearAllEnum { vxHard = vorlex::vxHard, vxSoft = vorlex::vxSoft };
  Q_ENUM(vxClearAllEnum)
  enum vxFont3DEnum {
    vxNoneFont3D = vorlex::vxNoneFont3D,
    vxRaisedLight = vorlex::vxRaisedLight,
    vxInsetLight = vorlex::vxInsetLight,
    vxRaisedShadow = vorlex::vxRaisedShadow,
    vxInsetShadow = vorlex::vxInsetShadow,
  };
  Q_ENUM(vxFont3DEnum)
  enum vxGradientGranularityEnum {
    vxDefault = vorlex::vxDefault,
    vxHigh = vorlex::vxHigh,
    vxMedium = vorlex::vxMedium,
    vxLow = vorlex::vxLow,
    vxVeryLow = vorlex::vxVeryLow,
  };
  Q_ENUM(vxGradientGranularityEnum)
  enum vxGradientStyleEnum {
    vxNoneGradient = vorlex::vxNoneGradient,
    vxLeftHGradient = vorlex::vxLeftHGradient,
    vxRightHGradient = vorlex::vxRightHGradient,
    vxTopVGradient = vorlex::vxTopVGradient,
    vxBottomVGradient = vorlex::vxBottomVGradient,
    vxInnerHGradient = vorlex::vxInnerHGradient,
    vxOuterHGradient = vorlex::vxOuterHGradient,
    vxInnerVGradient = vorlex::vxInnerVGradient,
    vxOuterVGradient = vorlex::vxOuterVGradient,
    vxInnerCircleGradient = vorlex::vxInnerCircleGradient,
    vxOuterCircleGradient = vorlex::vxOuterCircleGradient,
    vxInnerRectangleGradient = vorlex::vxInnerRectangleGradient,
    vxOuterRectangleGradient = vorlex::vxOuterRectangleGradient,
  };
  Q_ENUM(vxGradientStyleEnum)
  enum vxOrientationEnum {
    vxFromLeft = vorlex::vxFromLeft,
    vxFromRight = vorlex::vxFromRight,
    vxFromTop = vorlex::vxFromTop,
    vxFromBottom = vorlex::vxFromBottom,
  };
  Q_ENUM(vxOrientationEnum)
  enum vxRivetsStyleEnum {
    vxNoneRivets = vorlex::vxNoneRivets,
    vxRaisedRivets = vorlex::vxRaisedRivets,
    vxInsetRivets = vorlex::vxInsetRivets,
    vxRaisedRivetsExt = vorlex::vxRaisedRivetsExt,
    vxInsetRivetsExt = vorlex::vxInsetRivetsExt,
  };
  Q_ENUM(vxRivetsStyleEnum)
  enum vxShapeStyleEnum { vxRectangle = vorlex::vxRectangle, vxCircle = vorlex::vxCircle };
  Q_ENUM(vxShapeStyleEnum)
  enum vxTileEnum {
    vxNoneTile = vorlex::vxNoneTile,
    vxHorizontalTile = vorlex::vxHorizontalTile,
    vxVerticalTile = vorlex::vxVerticalTile,
    vxBothTile = vorlex::vxBothTile,
  };
  Q_ENUM(vxTileEnum)

  explicit VorlexWidget(QWidget* parent = nullptr);
  ~VorlexWidget() override;

  // The hosted control, for every member of its interface.
  vorlex::Vorlex& control();
  const vorlex::Vorlex& control() const;

  // Form text: a file or a Qt resource (":/..."), the first Vorlex control
  // in it. False with a message in *error when the form cannot be read.
  bool loadForm(const QString& path, QString* error = nullptr);
  // Writes the control's form text; pictures go beside the file.
  bool saveForm(const QString& path, QString* error = nullptr) const;
  QString formText() const;
  void setFormText(const QString& text);

  bool userMode() const;
  void setUserMode(bool userMode);
  // The disks and clock live texts read: the system's unless replaced
  // (a drive map, a fixed time).
  void setDiskService(std::unique_ptr<vorlex::DiskService> disks);
  void setClockService(std::unique_ptr<vorlex::ClockService> clock);

  QSize sizeHint() const override;

  // Control properties.
  QColor backColor() const;
  void setBackColor(const QColor& color);
  QColor foreColor() const;
  void setForeColor(const QColor& color);
  int borderWidth() const;
  void setBorderWidth(int value);
  vxBorderStyleEnum borderStyle() const;
  void setBorderStyle(vxBorderStyleEnum value);
  int hMinValue() const;
  void setHMinValue(int value);
  int hMaxValue() const;
  void setHMaxValue(int value);
  int vMinValue() const;
  void setVMinValue(int value);
  int vMaxValue() const;
  void setVMaxValue(int value);
  vxBrushStyleEnum brushStyle() const;
  void setBrushStyle(vxBrushStyleEnum value);
  QColor brushColor() const;
  void setBrushColor(const QColor& color);
  QString caption() const;
  void setCaption(const QString& text);
  vxAlignmentEnum captionAlignment() const;
  void setCaptionAlignment(vxAlignmentEnum value);
  int captionOffset() const;
  void setCaptionOffset(int value);
  int captionAngle() const;
  void setCaptionAngle(int value);
  vxAutoAngleEnum captionAutoAngle() const;
  void setCaptionAutoAngle(vxAutoAngleEnum value);
  vxFont3DEnum captionFont3D() const;
  void setCaptionFont3D(vxFont3DEnum value);
  QColor disabledColor() const;
  void setDisabledColor(const QColor& color);
  vxOrientationEnum orientation() const;
  void setOrientation(vxOrientationEnum value);
  bool redraw() const;
  void setRedraw(bool value);
  int timerTimeInterval() const;
  void setTimerTimeInterval(int value);
  bool timerTimeEnabled() const;
  void setTimerTimeEnabled(bool value);
  int timerDiskInterval() const;
  void setTimerDiskInterval(int value);
  bool timerDiskEnabled() const;
  void setTimerDiskEnabled(bool value);
  vxRivetsStyleEnum rivetsStyle() const;
  void setRivetsStyle(vxRivetsStyleEnum value);
  vxGradientStyleEnum gradientStyle() const;
  void setGradientStyle(vxGradientStyleEnum value);
  QColor gradientColor() const;
  void setGradientColor(const QColor& color);
  QColor gradientColorEnd() const;
  void setGradientColorEnd(const QColor& color);
  vxGradientGranularityEnum gradientGranularity() const;
  void setGradientGranularity(vxGradientGranularityEnum value);
  vxAutoSizeEnum pictureAutoSize() const;
  void setPictureAutoSize(vxAutoSizeEnum value);
  vxTileEnum pictureTile() const;
  void setPictureTile(vxTileEnum value);
  int pictureOffset() const;
  void setPictureOffset(int value);
  vxAlignmentEnum pictureAlignment() const;
  void setPictureAlignment(vxAlignmentEnum value);
  int blocks() const;
  void setBlocks(int count);
  int indexBlock() const;
  void setIndexBlock(int index);

  // The block list. A block argument is a number (1-based; -1 for
  // indexBlock) or a key. Errors are the control's vorlex::AutomationError.
  Q_INVOKABLE void addBlock();
  Q_INVOKABLE void deleteBlock(const QVariant& block);
  Q_INVOKABLE void clearBlockBar();
  Q_INVOKABLE void clearAll(vxClearAllEnum clear = vxSoft);
  Q_INVOKABLE void saveSetting();
  Q_INVOKABLE void restoreSetting();
  Q_INVOKABLE void refresh();
  Q_INVOKABLE void showAboutBox();
  // Control picture from a file; an empty path removes it.
  Q_INVOKABLE void setPicture(const QString& path);

  // Per-block members.
  Q_INVOKABLE QString blockKey(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockKey(const QString& key, const QVariant& block = -1);
  Q_INVOKABLE int blockBarLeft(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockBarLeft(int value, const QVariant& block = -1);
  Q_INVOKABLE int blockBarRight(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockBarRight(int value, const QVariant& block = -1);
  Q_INVOKABLE int blockBarTop(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockBarTop(int value, const QVariant& block = -1);
  Q_INVOKABLE int blockBarBottom(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockBarBottom(int value, const QVariant& block = -1);
  Q_INVOKABLE vxBorderStyleEnum blockBorderStyle(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockBorderStyle(vxBorderStyleEnum value, const QVariant& block = -1);
  Q_INVOKABLE int blockBorderWidth(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockBorderWidth(int value, const QVariant& block = -1);
  Q_INVOKABLE vxShapeStyleEnum blockShapeStyle(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockShapeStyle(vxShapeStyleEnum value, const QVariant& block = -1);
  Q_INVOKABLE vxBrushStyleEnum blockBrushStyle(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockBrushStyle(vxBrushStyleEnum value, const QVariant& block = -1);
  Q_INVOKABLE QColor blockBrushColor(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockBrushColor(const QColor& color, const QVariant& block = -1);
  Q_INVOKABLE bool blockVisible(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockVisible(bool value, const QVariant& block = -1);
  Q_INVOKABLE QString blockHPercentage(const QVariant& block = -1) const;
  Q_INVOKABLE QString blockVPercentage(const QVariant& block = -1) const;
  Q_INVOKABLE bool blockOnTop(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockOnTop(bool value, const QVariant& block = -1);
  Q_INVOKABLE QColor blockColor(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockColor(const QColor& color, const QVariant& block = -1);
  Q_INVOKABLE vxGradientStyleEnum blockGradientStyle(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockGradientStyle(vxGradientStyleEnum value, const QVariant& block = -1);
  Q_INVOKABLE vxGradientGranularityEnum blockGradientGranularity(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockGradientGranularity(vxGradientGranularityEnum value, const QVariant& block = -1);
  Q_INVOKABLE QColor blockGradientColor(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockGradientColor(const QColor& color, const QVariant& block = -1);
  Q_INVOKABLE QColor blockGradientColorEnd(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockGradientColorEnd(const QColor& color, const QVariant& block = -1);
  Q_INVOKABLE QString blockText(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockText(const QString& text, const QVariant& block = -1);
  Q_INVOKABLE QColor blockTextColor(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockTextColor(const QColor& color, const QVariant& block = -1);
  Q_INVOKABLE vxAlignmentEnum blockTextAlignment(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockTextAlignment(vxAlignmentEnum value, const QVariant& block = -1);
  Q_INVOKABLE QFont blockTextFont(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockTextFont(const QFont& font, const QVariant& block = -1);
  Q_INVOKABLE vxFont3DEnum blockTextFont3D(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockTextFont3D(vxFont3DEnum value, const QVariant& block = -1);
  Q_INVOKABLE int blockTextOffset(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockTextOffset(int value, const QVariant& block = -1);
  Q_INVOKABLE int blockTextAngle(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockTextAngle(int value, const QVariant& block = -1);
  Q_INVOKABLE vxAutoAngleEnum blockTextAutoAngle(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockTextAutoAngle(vxAutoAngleEnum value, const QVariant& block = -1);
  Q_INVOKABLE vxRivetsStyleEnum blockRivetsStyle(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockRivetsStyle(vxRivetsStyleEnum value, const QVariant& block = -1);
  // The block's picture from a file; an empty path removes it.
  Q_INVOKABLE void setBlockPicture(const QString& path, const QVariant& block = -1);
  Q_INVOKABLE bool blockHasPicture(const QVariant& block = -1) const;
  Q_INVOKABLE int blockPictureOffset(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockPictureOffset(int value, const QVariant& block = -1);
  Q_INVOKABLE vxAlignmentEnum blockPictureAlignment(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockPictureAlignment(vxAlignmentEnum value, const QVariant& block = -1);
  Q_INVOKABLE vxTileEnum blockPictureTile(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockPictureTile(vxTileEnum value, const QVariant& block = -1);
  Q_INVOKABLE bool blockClickable(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockClickable(bool value, const QVariant& block = -1);
  Q_INVOKABLE bool blockAutoSize(const QVariant& block = -1) const;
  Q_INVOKABLE void setBlockAutoSize(bool value, const QVariant& block = -1);

 signals:
  // A mouse release: the hit block's number, -1 when no block was hit.
  void blockClicked(int block);
  void clicked();
  void doubleClicked();
  void timerTime();
  void timerDisk();
  // The control reported a change of one of its properties, by its name.
  void propertyChanged(const QString& name);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  struct Private;
  friend class WidgetSite;
  std::unique_ptr<Private> d;
};

}  // namespace vorlex::qt
