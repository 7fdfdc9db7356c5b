cross() { # from Title: to crossword sheet with 'All done' answered
k alt+c; sleep .2; 
}
