#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "pages/luminaire/LampFields.h"
#include "wizard/PageFrame.h"

namespace Ui {
class LampPage;
}

namespace penwright {

class SettingsStore;
class TextBox;

/// Page 1: lamp and power, the luminous opening, and whether tilt data is included, which decides the next page.
class LampPage : public PageFrame {
    Q_OBJECT

public:
    LampPage(const PageContext &context, SettingsStore &store);
    ~LampPage() override;

    void load() override;

    /// Ticks the box by the way back, which the record decides: a host may have put another one there meanwhile.
    void comeBackFrom(int page) override;

    /// Tilt factors, too, where the record has no tilt: the box that includes it.
    std::optional<FaultPlace> placeOf(const RecordPlace &place) const override;

protected:
    void followValue() override;
    void focusFault(const FaultPlace &place) override;

private:
    void lmpCmbShape_Click();
    void tellUnits();
    void cmdNext10_Click();

    /// Shows the dimensions and the sketch of the shape at a list position. A position outside the list changes nothing
    /// but the sketch, which then holds its frame alone.
    void gsbDrawLuminaireGeo(std::int16_t position);

    LampFields readFields() const;
    std::array<TextBox *, kLampFieldCount> boxes() const;

    std::unique_ptr<Ui::LampPage> m_form;
    SettingsStore &m_store;
};

}  // namespace penwright
