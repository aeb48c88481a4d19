#pragma once

// The pictures of the contact import's steps, over a file of a few people made for them.
namespace ContactImportScreenshots {
void Register();
}
