// An option button whose group is managed by the form: a group may have no option selected.
#pragma once

#include <QRadioButton>

#include <vector>

namespace warhost {

/// The arrow keys select the neighbours in the same parent and wrap around. A group is one stop for the Tab key: its
/// selected option, or its first.
class OptionChoice : public QRadioButton {
    Q_OBJECT

public:
    explicit OptionChoice(QWidget* parent);

    /// Shows the state in the form.
    void show_selected(bool selected);

protected:
    void nextCheckState() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    std::vector<OptionChoice*> group() const;
};

} // namespace warhost
