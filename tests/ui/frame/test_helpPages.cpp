// SPDX-FileCopyrightText: The Boulix developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The help pages as they are handed out, shown in the window that players see them in.

#include "support/locations.h"
#include "ui/frame/helpWindow.h"
#include "ui/support/screenTest.h"
#include "ui/widgets/qtText.h"

#include <QFileInfo>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextFragment>

#include <filesystem>
#include <set>

namespace boulix {
namespace {

namespace fs = std::filesystem;
using Pages = std::set<std::string>;

class HelpPagesTest : public ScreenTest {
  protected:
    HelpPagesTest() : folder_(testing_support::checkoutFolder() / "help") {}

    std::string page(const std::string &name) const { return (folder_ / name).string(); }
    /// The pages that a page links to.
    Pages linksOf(const std::string &name) {
        help_.showPage(toQt(page(name)));
        Pages links;
        const QTextDocument &text = *control<QTextBrowser>(help_, "txtHelp").document();
        for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
            for (auto part = block.begin(); !part.atEnd(); ++part)
                if (part.fragment().charFormat().isAnchor())
                    links.insert(part.fragment().charFormat().anchorHref().toStdString());
        return links;
    }
    Pages allPages() const {
        Pages names;
        for (const auto &entry : fs::directory_iterator(folder_))
            if (entry.path().extension() == ".html")
                names.insert(entry.path().filename().string());
        return names;
    }

    HelpWindow help_;

  private:
    fs::path folder_;
};

TEST_F(HelpPagesTest, EveryPageCanBeReachedFromTheFirstOneAndNoLinkLeadsNowhere) {
    Pages reached{"index.html"};
    Pages open = reached;
    while (!open.empty()) {
        const std::string name = *open.begin();
        open.erase(open.begin());
        ASSERT_TRUE(fs::exists(page(name))) << name;
        for (const std::string &link : linksOf(name))
            if (reached.insert(link).second)
                open.insert(link);
    }
    EXPECT_EQ(reached, allPages());
}

TEST_F(HelpPagesTest, EveryPageBeginsWithItsTitle) {
    auto &text = control<QTextBrowser>(help_, "txtHelp");
    for (const std::string &name : allPages()) {
        help_.showPage(toQt(page(name)));
        EXPECT_EQ(text.document()->firstBlock().text(), text.documentTitle()) << name;
        EXPECT_FALSE(text.documentTitle().isEmpty()) << name;
    }
}

} // namespace
} // namespace boulix
